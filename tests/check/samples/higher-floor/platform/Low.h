#pragma once

#include "ui/High.h"
