#pragma once

#include <QProcess>

namespace tessaline {

class PrompterHome;

/// The program under measurement, running.
class RunningProgram {
public:
    explicit RunningProgram(const PrompterHome& home);
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// Where its executable is: beside ours.
    static QString path();

    /// Seconds of processor time used so far.
    double processorSeconds() const;

    /// Resident memory in MiB.
    double residentMebibytes() const;

private:
    QByteArray procFile(const QString& name) const;

    QProcess process;
};

} // namespace tessaline
