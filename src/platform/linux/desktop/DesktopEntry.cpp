#include "platform/linux/desktop/DesktopEntry.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <array>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array launchers = {"env"_L1, "flatpak"_L1, "snap"_L1, "sh"_L1, "bash"_L1};

/// Undoes the escapes that any value may hold.
QString unescaped(QStringView value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        switch (value[++i].unicode()) {
        case u's':
            text += u' ';
            break;
        case u'n':
            text += u'\n';
            break;
        case u't':
            text += u'\t';
            break;
        case u'r':
            text += u'\r';
            break;
        case u'\\':
            text += u'\\';
            break;
        default:
            text += value.sliced(i - 1, 2);
        }
    }
    return text;
}

/// The first word of a command; within double quotes, spaces count and a backslash protects.
QString firstArgument(QStringView command) {
    command = command.trimmed();
    const bool quoted = command.startsWith(u'"');
    QString argument;
    for (qsizetype i = quoted ? 1 : 0; i < command.size(); ++i) {
        if (command[i] == (quoted ? u'"' : u' ')) break;
        if (quoted && command[i] == u'\\' && i + 1 < command.size()) ++i;
        argument += command[i];
    }
    return argument;
}

/// The path of an executable file that is named by its path or is on the search path; else empty.
QString executablePath(const QString& name) {
    return name.isEmpty() ? QString() : QStandardPaths::findExecutable(name);
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::parse(const QByteArray& bytes) {
    DesktopEntry entry;
    bool inGroup = false;
    bool isApplication = false;
    for (const QByteArray& line : bytes.split('\n')) {
        const QString text = QString::fromUtf8(line).trimmed();
        if (text.startsWith(u'[')) inGroup = text == "[Desktop Entry]"_L1;
        const qsizetype equals = text.indexOf(u'=');
        if (!inGroup || equals < 0 || text.startsWith(u'#')) continue;
        const QString key = text.first(equals).trimmed();
        const QString value = unescaped(QStringView(text).sliced(equals + 1).trimmed());
        if (key == "Type"_L1) isApplication = value == "Application"_L1;
        if (key == "Exec"_L1) entry.command = value;
        if (key == "TryExec"_L1) entry.tryExec = value;
        if (key == "Icon"_L1) entry.icon = value;
        if (key == "Hidden"_L1) entry.hidden = value == "true"_L1;
    }
    return isApplication ? std::optional(entry) : std::nullopt;
}

std::optional<QString> DesktopEntry::program() const {
    const QString path = executablePath(firstArgument(command));
    if (path.isEmpty()) return std::nullopt;
    for (const QLatin1String launcher : launchers)
        if (QFileInfo(path).fileName() == launcher) return std::nullopt;
    return path;
}

bool DesktopEntry::isInstalled() const {
    if (hidden || executablePath(firstArgument(command)).isEmpty()) return false;
    return tryExec.isEmpty() || !executablePath(tryExec).isEmpty();
}

} // namespace tessaline
