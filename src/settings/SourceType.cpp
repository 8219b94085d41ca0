#include "settings/SourceType.h"
