#pragma once

#include "ui/Two.h"
