#pragma once

#include <QString>

#include <cstdio>

namespace tessaline {

/// Prints measured values beside the most that is wanted of them: as a Markdown table, which
/// tools/bench joins with those of the other programs.
class Verdicts {
public:
    Verdicts() {
        printRow(QStringLiteral("What"), QStringLiteral("Measured"),
                 QStringLiteral("Wanted at most"), QString());
        printRow(QString(78, u'-'), QString(15, u'-') + u':', QString(14, u'-') + u':',
                 QString(11, u'-'));
    }

    /// A row of its own for a value that is wanted to be `wanted` at most, in the same unit.
    void judge(const QString& what, double value, double wanted, const char* unit) {
        const bool passes = value <= wanted;
        const QString ending = *unit ? u' ' + QString::fromUtf8(unit) : QString();
        printRow(what, number(value) + ending, number(wanted) + ending,
                 passes ? QStringLiteral("pass") : QStringLiteral("falls short"));
        allPass = allPass && passes;
    }

    /// 0 if nothing fell short, else 1.
    int exitStatus() const { return allPass ? 0 : 1; }

private:
    static void printRow(const QString& what, const QString& value, const QString& wanted,
                         const QString& verdict) {
        const QString row = QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                                .arg(what.leftJustified(78), value.rightJustified(16),
                                     wanted.rightJustified(15), verdict.leftJustified(11));
        std::fputs(row.toUtf8().constData(), stdout);
        std::fflush(stdout);
    }

    /// Three digits, or all before the point.
    static QString number(double value) {
        return value < 999.5 ? QString::number(value, 'g', 3) : QString::number(value, 'f', 0);
    }

    bool allPass = true;
};

} // namespace tessaline
