#include "render/MarkdownRenderer.h"
