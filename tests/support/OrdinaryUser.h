#pragma once

#include <unistd.h>

namespace tessaline {

/// Gives up the superuser's powers, if this process has them: permissions do not bind those. For
/// the child processes of death tests. Ends the process when it cannot.
inline void becomeOrdinaryUser() {
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 && ::setuid(nobody) != 0) ::_exit(2);
}

} // namespace tessaline
