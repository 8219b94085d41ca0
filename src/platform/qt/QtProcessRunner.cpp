#include "platform/qt/QtProcessRunner.h"

#include "settings/Utf8.h"

#include <QElapsedTimer>
#include <QProcess>

#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

constexpr std::int32_t noExitCode = -1;
constexpr int checkMilliseconds = 100;

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

/// Runs in the child, where little else than calls of the system is allowed.
void limitMemory(quint64 bytes) {
    const struct rlimit limit { rlim_t(bytes), rlim_t(bytes) };
    ::setrlimit(RLIMIT_AS, &limit);
}

/// What a running program goes beyond, if anything.
std::optional<ProcessLimits::Kind> exceeded(const ProcessLimits& limits, qint64 outputBytes,
                                            const QElapsedTimer& sinceStart) {
    if (limits.outputBytes && outputBytes > *limits.outputBytes) return ProcessLimits::Kind::output;
    const std::chrono::milliseconds elapsed(sinceStart.elapsed());
    if (limits.time && elapsed >= *limits.time) return ProcessLimits::Kind::time;
    return {};
}

} // namespace

ProcessResult QtProcessRunner::run(const QString& program, const QStringList& arguments,
                                   const ProcessLimits& limits) {
    if (stopping) return {{}, u"The program is about to end"_s, noExitCode, false, {}};
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    if (limits.memoryBytes)
        process.setChildProcessModifier([bytes = *limits.memoryBytes] { limitMemory(bytes); });
    QElapsedTimer sinceStart;
    sinceStart.start();
    process.start(program, arguments);
    if (!process.waitForStarted(-1)) return {{}, startFailure(process), noExitCode, false, {}};
    ProcessResult result;
    while (process.state() != QProcess::NotRunning) {
        // One that has closed its output has nothing to read any more, and may still run.
        if (!process.waitForReadyRead(checkMilliseconds))
            process.waitForFinished(checkMilliseconds);
        if (!result.exceeded)
            result.exceeded = exceeded(limits, process.bytesAvailable(), sinceStart);
        if (stopping || result.exceeded) process.kill();
    }
    result.output = trimmedText(process.readAllStandardOutput());
    result.error = trimmedText(process.readAllStandardError());
    result.exitCode = exitCodeOf(process);
    return result;
}

} // namespace tessaline
