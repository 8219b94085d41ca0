#pragma once

#include "Journal.h"

#include "platform/AccessibilityTrust.h"
#include "platform/ActivationPolicy.h"
#include "platform/BundleInformation.h"
#include "platform/DisplayLink.h"
#include "platform/LocalKeyMonitor.h"
#include "platform/StatusArea.h"
#include "platform/TaskRunner.h"
#include "platform/TimerMaker.h"

#include <functional>
#include <memory>
#include <utility>

namespace tessaline {

/// Witnesses that stand before a port; each owns what it hands everything on to.
class JournalingBundle final : public BundleInformation {
public:
    explicit JournalingBundle(Journal& shared) : journal(shared) {}
    std::optional<QString> identifier() const override { return std::nullopt; }
    std::optional<QString> resourceFolder() const override { return std::nullopt; }
    std::optional<QString> value(const QString& key) const override {
        journal << QStringLiteral("read ") + key;
        return QStringLiteral("an id");
    }

private:
    Journal& journal;
};

class JournalingStatusArea final : public StatusArea {
public:
    explicit JournalingStatusArea(Journal& shared) : journal(shared) {}
    bool isThere() const override { return true; }
    bool opensMenus() const override { return false; }
    QImage symbol(const QString& name, const QString&) const override {
        journal << QStringLiteral("draw ") + name;
        return {};
    }

private:
    Journal& journal;
};

class JournalingPolicy final : public ActivationPolicy {
public:
    JournalingPolicy(Journal& shared, std::unique_ptr<ActivationPolicy> /*real*/)
        : journal(shared) {}
    void set(Kind kind) override {
        journal << (kind == Kind::regular ? QStringLiteral("policy regular")
                                          : QStringLiteral("policy accessory"));
    }
    void activateIgnoringOtherApps() override { journal << QStringLiteral("activate"); }

private:
    Journal& journal;
};

class JournalingKeys final : public LocalKeyMonitor {
public:
    JournalingKeys(Journal& shared, std::unique_ptr<LocalKeyMonitor> real)
        : journal(shared), keys(std::move(real)) {}
    std::unique_ptr<Registration> start(Handler handler) override {
        journal << QStringLiteral("set up shortcuts");
        return keys->start(std::move(handler));
    }

private:
    Journal& journal;
    std::unique_ptr<LocalKeyMonitor> keys;
};

class JournalingTrust final : public AccessibilityTrust {
public:
    JournalingTrust(Journal& shared, std::unique_ptr<AccessibilityTrust> real)
        : journal(shared), trust(std::move(real)) {}
    bool isTrusted() const override {
        journal << QStringLiteral("ask for trust");
        return trust->isTrusted();
    }
    void requestWithPrompt() override { trust->requestWithPrompt(); }

private:
    Journal& journal;
    std::unique_ptr<AccessibilityTrust> trust;
};

class JournalingTimers final : public TimerMaker {
public:
    JournalingTimers(Journal& shared, std::unique_ptr<TimerMaker> real)
        : journal(shared), timers(std::move(real)) {}
    std::unique_ptr<RepeatingTimer> every(Interval interval,
                                          std::function<void()> action) override {
        journal << QStringLiteral("timer %1").arg(interval.count());
        return timers->every(interval, std::move(action));
    }

private:
    Journal& journal;
    std::unique_ptr<TimerMaker> timers;
};

/// Where long texts are rendered.
class JournalingRenderTasks final : public TaskRunner {
public:
    JournalingRenderTasks(Journal& shared, std::unique_ptr<TaskRunner> real)
        : journal(shared), tasks(std::move(real)) {}
    void run(std::function<void()> task) override {
        journal << QStringLiteral("render");
        if (onRun) onRun();
        tasks->run(std::move(task));
    }

    std::function<void()> onRun;

private:
    Journal& journal;
    std::unique_ptr<TaskRunner> tasks;
};

/// Learns where the prompter is from each placing of it.
class JournalingDisplayLinks final : public DisplayLinkMaker {
public:
    JournalingDisplayLinks(Journal& shared, std::unique_ptr<DisplayLinkMaker> real)
        : journal(shared), links(std::move(real)) {}
    std::unique_ptr<DisplayLink> make(DisplayLink::Callback callback) override {
        return links->make(std::move(callback));
    }
    void setRefreshRate(double hertz) override {
        journal << QStringLiteral("place Tessaline");
        links->setRefreshRate(hertz);
    }

private:
    Journal& journal;
    std::unique_ptr<DisplayLinkMaker> links;
};

} // namespace tessaline
