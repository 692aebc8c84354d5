#include "VNStackContextHandler.h"

VNStackContextHandler::~VNStackContextHandler() = default;
