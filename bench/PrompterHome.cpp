#include "PrompterHome.h"

#include "SampleTalk.h"

#include <QDir>
#include <QFile>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

PrompterHome::PrompterHome(qsizetype words, const QByteArray& settings, double pixelsPerPoint)
    : scale(pixelsPerPoint) {
    QDir().mkpath(folder);
    write(script(), SampleTalk().write(words).toUtf8());
    write(folder + u"/config.json"_s, "{\"hasCompletedOnboarding\": true, " + settings + '}');
}

QString PrompterHome::script() const {
    return folder + u"/clipboard-content.md"_s;
}

QProcessEnvironment PrompterHome::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home.path());
    environment.insert(u"XDG_RUNTIME_DIR"_s, home.path());
    environment.insert(u"DO_NOT_TRACK"_s, u"1"_s);
    environment.insert(u"QT_LOGGING_RULES"_s, u"*.info=false"_s);
    environment.insert(u"QT_SCALE_FACTOR"_s, QString::number(scale));
    return environment;
}

void PrompterHome::write(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("Cannot write %s", qPrintable(name));
}

} // namespace tessaline
