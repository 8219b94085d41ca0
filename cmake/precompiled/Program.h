#pragma once

// Read by every source of the program. Nothing of ours belongs here: a change of it would build
// everything again.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QColor>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLoggingCategory>
#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QScreen>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <QWindow>
