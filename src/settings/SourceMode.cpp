#include "settings/SourceMode.h"
