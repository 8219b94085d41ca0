#include "platform/qt/KeyTranslation.h"

namespace tessaline {

KeyTranslation systemKeyTranslation() {
    return KeyTranslation::command;
}

} // namespace tessaline
