#pragma once

#include <QAnimationDriver>

namespace tessaline {

/// The time of all animations, which moves when the test says so. Make it before any of them runs.
class FakeAnimationTime final : public QAnimationDriver {
public:
    FakeAnimationTime();
    ~FakeAnimationTime() override;

    /// Lets so many seconds pass, frame by frame.
    void pass(double seconds);

    qint64 elapsed() const override;

protected:
    void start() override;

private:
    double now = 0.0; ///< in milliseconds
    double startedAt = 0.0;
};

} // namespace tessaline
