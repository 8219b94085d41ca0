#include "settings/KeptCopy.h"

#include "settings/Replacement.h"
#include "settings/WholeFile.h"

#include <QFileInfo>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 copyLimit = qint64{256} << 20;
constexpr int mostCopies = 100;

QString copyName(const QString& path, int number) {
    const QString name = path + ".unreadable"_L1;
    return number == 1 ? name : name + u"-%1"_s.arg(number);
}

bool isTaken(const QFileInfo& place) {
    return place.exists() || place.isSymLink();
}

bool isCopy(const QFileInfo& place, const QByteArray& bytes) {
    return !place.isSymLink() && readWholeFile(place.filePath(), nullptr, bytes.size()) == bytes;
}

} // namespace

QString keepCopy(const QString& path, QString* error) {
    const auto bytes = readWholeFile(path, error, copyLimit);
    if (!bytes) return {};
    for (int number = 1; number <= mostCopies; ++number) {
        const QFileInfo place(copyName(path, number));
        if (isCopy(place, *bytes)) return place.filePath();
        if (isTaken(place)) continue;
        *error = createFile(place.filePath(), inOnePiece(*bytes), QFileInfo(path));
        return error->isEmpty() ? place.filePath() : QString();
    }
    *error = u"There are too many copies already"_s;
    return {};
}

} // namespace tessaline
