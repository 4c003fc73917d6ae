#include "ui/Two.h"

#include "ui/One.h"
