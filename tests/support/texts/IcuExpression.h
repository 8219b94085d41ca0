#pragma once

#include <QString>
#include <QStringView>

#include <unicode/uregex.h>

#include <memory>
#include <vector>

namespace tessaline {

/// A regular expression of ICU's over UTF-16, without a limit on stack or time. Ends the program
/// when the expression cannot be built or applied: a comparison with it would mean nothing.
class IcuExpression {
public:
    /// Where the whole expression and its participating group matched, in UTF-16 units.
    struct Match {
        qsizetype start = 0;
        qsizetype end = 0;
        qsizetype groupStart = 0; ///< of the first group that took part; -1 when none did
        qsizetype groupEnd = 0;
    };

    explicit IcuExpression(QStringView pattern);

    /// All matches in `text`, from front to back.
    std::vector<Match> matches(QStringView text) const;

    /// `text` with every match replaced; `replacement` may refer to groups as "$1".
    QString replaceAll(QStringView text, QStringView replacement) const;

private:
    struct Close {
        void operator()(URegularExpression* opened) const { uregex_close(opened); }
    };

    std::unique_ptr<URegularExpression, Close> expression;
};

} // namespace tessaline
