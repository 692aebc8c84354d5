#pragma once

// VNMenu is implemented in VNWidgets; application code that looks for it among the application
// widgets finds it here as well.
#include "../VNWidgets/VNMenu.h"
