#pragma once

#include <QStringView>

#include <array>

namespace tessaline {

/// Keys that the prompter answers to while it has the keyboard, and what they do.
struct ReaderKeys {
    QStringView keys;
    QStringView deed;
};

/// In the order in which they are told.
inline constexpr std::array readerKeys{
    ReaderKeys{u"Space, F5", u"Start or stop"},
    ReaderKeys{u"+, −", u"Faster, slower"},
    ReaderKeys{u"↑, ↓", u"Scroll a little"},
    ReaderKeys{u"PgUp, PgDn", u"Turn a page"},
    ReaderKeys{u"Home, End", u"To the top, to the end"},
    ReaderKeys{u"1 to 9", u"To a heading"},
    ReaderKeys{u"B, .", u"Black out, bring back"},
    ReaderKeys{u"M", u"Mirror the text"},
    ReaderKeys{u"G", u"Change the guide"},
    ReaderKeys{u"Ctrl+O", u"Open a script"},
    ReaderKeys{u"F1, ?", u"Show these keys"},
};

} // namespace tessaline
