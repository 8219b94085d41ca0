#include "RunningProgram.h"

#include "PrompterHome.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

#include <unistd.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

RunningProgram::RunningProgram(const PrompterHome& home) {
    process.setProcessEnvironment(home.environment());
    process.start(path(), QStringList());
}

RunningProgram::~RunningProgram() {
    process.terminate();
    if (!process.waitForFinished(5000)) process.kill();
    process.waitForFinished();
}

QString RunningProgram::path() {
    return QCoreApplication::applicationDirPath() + u"/tessaline"_s;
}

double RunningProgram::processorSeconds() const {
    const QList<QByteArray> fields = procFile(u"stat"_s).split(')').last().split(' ');
    return (fields[12].toDouble() + fields[13].toDouble()) / double(sysconf(_SC_CLK_TCK));
}

double RunningProgram::residentMebibytes() const {
    for (const QByteArray& line : procFile(u"status"_s).split('\n')) {
        if (line.startsWith("VmRSS:")) return line.simplified().split(' ')[1].toDouble() / 1024;
    }
    qFatal("The program does not run");
}

QByteArray RunningProgram::procFile(const QString& name) const {
    QFile file(u"/proc/%1/%2"_s.arg(process.processId()).arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace tessaline
