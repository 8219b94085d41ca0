#pragma once

#include "reading/Script.h"

#include <QString>

namespace tessaline {

/// Where two scripts differ in what is seen of them; empty if they do not.
QString difference(const Script& one, const Script& other);

} // namespace tessaline
