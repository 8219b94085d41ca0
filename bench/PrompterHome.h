#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>

namespace tessaline {

/// A home folder of its own, in which the prompter finds a script and settings.
class PrompterHome {
public:
    /// `settings` are members of the JSON object that config.json holds; `scale` is how many pixels
    /// a point has.
    PrompterHome(qsizetype words, const QByteArray& settings, double scale = 1);

    /// The file with the script.
    QString script() const;

    /// What a program finds in its environment whose home this is.
    QProcessEnvironment environment() const;

private:
    static void write(const QString& name, const QByteArray& bytes);

    double scale;
    QTemporaryDir home;
    QString folder = home.filePath(QStringLiteral("Library/Application Support/Tessaline"));
};

} // namespace tessaline
