#include "platform/qt/QtProcessRunner.h"

#include "settings/Utf8.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

constexpr std::int32_t noExitCode = -1;
constexpr int stopCheckMilliseconds = 100;

QString trimmedText(const QByteArray& bytes) {
    return decodeUtf8(bytes, ByteOrderMark::keep).value_or(QString()).trimmed();
}

/// The system's text alone: Qt puts the call that failed before it.
QString startFailure(const QProcess& process) {
    return process.errorString().section(u": "_s, -1);
}

std::int32_t exitCodeOf(const QProcess& process) {
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : noExitCode;
}

} // namespace

ProcessResult QtProcessRunner::run(const QString& program, const QStringList& arguments) {
    if (stopping) return {{}, u"The program is about to end"_s, noExitCode};
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForStarted(-1)) return {{}, startFailure(process), noExitCode};
    while (process.state() != QProcess::NotRunning &&
           !process.waitForFinished(stopCheckMilliseconds)) {
        if (stopping) process.kill();
    }
    return {trimmedText(process.readAllStandardOutput()),
            trimmedText(process.readAllStandardError()), exitCodeOf(process)};
}

} // namespace tessaline
