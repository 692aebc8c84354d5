#include "VNContainerWidgetInterface.h"

VNContainerWidgetInterface::~VNContainerWidgetInterface() = default;
