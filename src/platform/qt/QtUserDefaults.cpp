#include "platform/qt/QtUserDefaults.h"

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Qt's own separator is the slash.
QString settingsKey(QString key) {
    return key.replace(u'.', u'/');
}

} // namespace

QtUserDefaults::QtUserDefaults()
    : open([] { return std::make_unique<QSettings>(u"tessaline.app"_s, u"Tessaline"_s); }) {}

QtUserDefaults::QtUserDefaults(const QString& path)
    : open([path] { return std::make_unique<QSettings>(path, QSettings::IniFormat); }) {}

std::optional<QString> QtUserDefaults::string(const QString& key) const {
    const std::scoped_lock guard(lock);
    const QVariant value = open()->value(settingsKey(key));
    return value.isValid() ? std::optional(value.toString()) : std::nullopt;
}

void QtUserDefaults::setString(const QString& key, const QString& value) {
    const std::scoped_lock guard(lock);
    const auto settings = open();
    settings->setValue(settingsKey(key), value);
    settings->sync();
}

} // namespace tessaline
