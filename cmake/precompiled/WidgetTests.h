#pragma once

// Read by every source of a test of widgets.

#include "Tests.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
