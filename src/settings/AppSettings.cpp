#include "settings/AppSettings.h"
