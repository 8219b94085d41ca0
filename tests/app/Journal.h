#pragma once

#include "analytics/UsageRecorder.h"

#include <QApplication>
#include <QEvent>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace tessaline {

/// What happened, in order. Witnesses write it down.
using Journal = QStringList;

class JournalingRecorder final : public UsageRecorder {
public:
    explicit JournalingRecorder(Journal& shared) : journal(shared) {}
    void record(const AnalyticsEvent& event) override { journal << event.name; }
    void trackAppLaunch() override { journal << QStringLiteral("app_launch"); }
    void trackAppTerminate() override { journal << QStringLiteral("app_terminate"); }
    void trackEnvironmentSnapshot(const AppSettings&) override {
        journal << QStringLiteral("environment_snapshot");
    }

private:
    Journal& journal;
};

/// Writes down which windows get their title, which they do while they are constructed, and which
/// of them are shown, hidden and, on request, moved.
class WindowWatcher final : public QObject {
public:
    explicit WindowWatcher(Journal& shared) : journal(shared) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(object);
        if (!widget || !widget->isWindow() || widget->windowTitle().isEmpty()) return false;
        const auto note = [&](const QString& what) { journal << what + widget->windowTitle(); };
        if (event->type() == QEvent::WindowTitleChange) note(QStringLiteral("make "));
        if (event->type() == QEvent::Show) note(QStringLiteral("show "));
        if (event->type() == QEvent::Hide) note(QStringLiteral("hide "));
        if (watchesMoves && event->type() == QEvent::Move) {
            note(QStringLiteral("move "));
            if (onMove) onMove();
        }
        return false;
    }

    bool watchesMoves = false;
    std::function<void()> onMove;

private:
    Journal& journal;
};

} // namespace tessaline
