#include "VirtualKeyboard.h"
#include "VirtualPointer.h"
#include "WaylandSeat.h"

#include <iostream>
#include <sstream>
#include <string>

namespace tessaline {
namespace {

/// Does what lines of words say. Words and buttons are those of xdotool.
class Hands {
public:
    explicit Hands(WaylandSeat& ofSeat) : seat(ofSeat), pointer(ofSeat), keyboard(ofSeat) {}

    /// False when a line is not understood.
    bool follow(const std::string& line) {
        std::istringstream words(line);
        std::string word;
        while (words >> word) {
            if (!follow(word, words)) return false;
            // Who looks at each state by itself has to be given it.
            seat.sync();
        }
        return true;
    }

private:
    bool follow(const std::string& word, std::istringstream& words) {
        if (word == "mousemove") return move(words);
        if (word == "slide") return slide(words);
        if (word == "type") return keyboard.type(rest(words));
        if (word == "lift") {
            pointer.lift();
            return true;
        }
        std::string argument;
        if (!(words >> argument)) return false;
        if (word == "key") return keyboard.strike(argument);
        if (word == "keydown") return keyboard.press(argument);
        if (word == "keyup") return keyboard.release(argument);
        return useButton(word, argument);
    }

    bool useButton(const std::string& word, const std::string& name) {
        const int button = name.size() == 1 ? name[0] - '0' : 0;
        if (word == "click" && button > 3) {
            turn(button);
            return true;
        }
        if (word != "click" && word != "mousedown" && word != "mouseup") return false;
        if (word != "mouseup") pointer.press(button);
        if (word == "click") seat.sync();
        if (word != "mousedown") pointer.release(button);
        return true;
    }

    /// What X servers call buttons 4 to 7.
    void turn(int button) {
        pointer.turn(button == 6   ? -1
                     : button == 7 ? 1
                                   : 0,
                     button == 4   ? -1
                     : button == 5 ? 1
                                   : 0);
    }

    bool move(std::istringstream& words) {
        std::uint32_t x = 0;
        std::uint32_t y = 0;
        std::uint32_t width = 0;
        std::uint32_t height = 0;
        if (!(words >> x >> y >> width >> height)) return false;
        pointer.moveTo(x, y, width, height);
        return true;
    }

    bool slide(std::istringstream& words) {
        double right = 0;
        double down = 0;
        if (!(words >> right >> down)) return false;
        pointer.slide(right, down);
        return true;
    }

    static std::string rest(std::istringstream& words) {
        std::string text;
        std::getline(words >> std::ws, text);
        return text;
    }

    WaylandSeat& seat;
    VirtualPointer pointer;
    VirtualKeyboard keyboard;
};

} // namespace
} // namespace tessaline

/// Does what it reads on standard input, and answers each line once the compositor has it.
int main() {
    const auto seat = tessaline::WaylandSeat::connect();
    if (!seat) {
        std::cerr << "the compositor lends no mouse and no keyboard\n";
        return 1;
    }
    tessaline::Hands hands(*seat);
    std::string line;
    while (std::getline(std::cin, line)) {
        const bool isUnderstood = hands.follow(line);
        if (!seat->sync()) return 1;
        std::cout << (isUnderstood ? "done" : "what?") << std::endl;
    }
    return 0;
}
