#pragma once

#include "remote/page/Secret.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <deque>

namespace tessaline {

/// Who has told the secret. Kept in memory alone: the next start of the program knows nobody.
class PageSessions {
public:
    /// One more, and the oldest ends.
    static constexpr std::size_t most = 16;

    explicit PageSessions(RandomBytes random);

    /// A new session, by what its browser shows from then on.
    QByteArray open();

    bool isOpen(QByteArrayView token) const;
    void closeAll() { tokens.clear(); }

private:
    RandomBytes random;
    std::deque<QByteArray> tokens; ///< the oldest first
};

} // namespace tessaline
