#pragma once

#include <QString>

namespace tessaline {

/// The media keys of keyboards, headsets and phones, and the desktop's widget of what is playing.
class MediaControls {
public:
    /// What they are told of the one that plays.
    struct Playing {
        QString title;
        bool moves = false;
        double seconds = 0.0; ///< that the whole takes
        double rate = 1.0;    ///< 1 is usual
        double leastRate = 1.0;
        double mostRate = 1.0;

        bool operator==(const Playing&) const = default;
    };

    /// What somebody wants by them.
    struct Wish {
        enum class Deed {
            play,
            pause,
            playOrPause,
            stop,
            next,
            previous,
            moveBy,  ///< seconds; negative is back
            goTo,    ///< seconds from the beginning
            setRate, ///< within the limits
            show,
            quit,
        };

        Deed deed;
        double number = 0.0;

        bool operator==(const Wish&) const = default;
    };

    /// The one that plays. Main thread.
    class Player {
    public:
        virtual ~Player() = default;
        virtual void carryOut(const Wish& wish) = 0;
        virtual double secondsPlayed() const = 0;
    };

    virtual ~MediaControls() = default;

    /// Tells of what plays, now and whenever that is something else; wishes go to the player, which
    /// is borrowed, until it is withdrawn.
    virtual void show(const Playing& playing, Player& player) = 0;

    /// The player is somewhere else than its rate brought it.
    virtual void tellJump() = 0;

    /// Nothing plays any more.
    virtual void withdraw() = 0;
};

} // namespace tessaline
