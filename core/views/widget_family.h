#pragma once

/// The families are those of the box that a view is laid out in.
#include "ui/tree/widget_family.h"
