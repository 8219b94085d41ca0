#pragma once

namespace tessaline {

/// One scroll axis of a pointing device: it counts up while the content moves down, by one
/// `increment` for what a wheel's notch or a line would be.
class ScrollAxis {
public:
    struct Delta {
        bool isPrecise = false;
        double amount = 0.0; ///< points if precise, else lines; positive is up
    };

    /// `increment` is not zero; a negative one counts the other way.
    explicit ScrollAxis(double increment);

    /// Where the axis is now, without anybody having scrolled for us.
    void restartAt(double position);

    /// By how much the user scrolled. A device is taken for a wheel, which tells lines, until it
    /// first tells a part of one.
    Delta moveTo(double position);

private:
    double increment;
    double value = 0.0;
    bool isSmooth = false;
};

} // namespace tessaline
