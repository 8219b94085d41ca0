#include "settings/SupportFolder.h"
