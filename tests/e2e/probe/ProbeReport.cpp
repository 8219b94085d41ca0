#include "ProbeReport.h"

#include <QJsonDocument>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

void report(const QString& event, QJsonObject details) {
    details.insert(u"event"_s, event);
    std::cout << QJsonDocument(details).toJson(QJsonDocument::Compact).constData() << std::endl;
}

} // namespace tessaline
