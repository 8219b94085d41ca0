#include "platform/qt/KeyTranslation.h"

namespace tessaline {

KeyTranslation systemKeyTranslation() {
    return KeyTranslation::control;
}

} // namespace tessaline
