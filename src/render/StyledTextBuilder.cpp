#include "render/StyledTextBuilder.h"
