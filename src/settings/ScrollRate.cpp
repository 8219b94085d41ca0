#include "settings/ScrollRate.h"
