#include "platform/linux/DisplayChoice.h"
#include "support/CaseName.h"

#include <gmock/gmock.h>

#include <map>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Compositor { none, withoutLayers, withLayers };

struct Session {
    QString name;
    std::map<std::string, QString> environment;
    Compositor compositor = Compositor::none;
    bool xServer = false;
    DisplayChoice choice;
};

DisplayChoice choiceIn(const Session& session) {
    const auto variable = [&session](const char* name) {
        const auto found = session.environment.find(name);
        return found == session.environment.end() ? QString() : found->second;
    };
    const auto wayland = [&session]() -> std::optional<bool> {
        if (session.compositor == Compositor::none) return std::nullopt;
        return session.compositor == Compositor::withLayers;
    };
    return chooseDisplay(variable, {[&session] { return session.xServer; }, wayland});
}

const DisplayChoice x11{.qtPlatform = u"xcb"_s};
const DisplayChoice layers{.qtPlatform = u"wayland"_s, .hangsOnLayers = true};
const DisplayChoice ordinaryWindow{.qtPlatform = u"wayland"_s};

DisplayChoice problem(const QString& text) {
    return {.problem = text};
}

class ChooseDisplay : public ::testing::TestWithParam<Session> {};

TEST_P(ChooseDisplay, TakesWhatServesThePrompterBest) {
    const DisplayChoice choice = choiceIn(GetParam());
    EXPECT_EQ(choice, GetParam().choice)
        << choice.qtPlatform.toStdString() << choice.problem.toStdString();
}

using C = Compositor;

INSTANTIATE_TEST_SUITE_P(
    Sessions, ChooseDisplay,
    ::testing::Values(
        Session{u"X11"_s, {{"DISPLAY", u":0"_s}}, C::none, true, x11},
        Session{u"ACompositorWithLayers"_s,
                {{"DISPLAY", u":0"_s}, {"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::withLayers,
                true,
                layers},
        Session{u"ACompositorWithLayersOnly"_s,
                {{"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::withLayers,
                false,
                layers},
        Session{u"ACompositorWithoutLayers"_s,
                {{"DISPLAY", u":0"_s}, {"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::withoutLayers,
                true,
                x11},
        Session{u"ACompositorWithNeither"_s,
                {{"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::withoutLayers,
                false,
                ordinaryWindow},
        Session{u"ACompositorThatIsGone"_s,
                {{"DISPLAY", u":0"_s}, {"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::none,
                true,
                x11},
        Session{u"NothingAnswers"_s,
                {{"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::none,
                false,
                problem(u"the Wayland display wayland-0 does not answer"_s)},
        Session{u"AnXServerThatIsGone"_s,
                {{"DISPLAY", u":7"_s}},
                C::none,
                false,
                problem(u"the display :7 does not answer"_s)},
        Session{u"NoDisplay"_s,
                {},
                C::none,
                false,
                problem(u"there is no display to show the prompter on (DISPLAY is not set)"_s)},
        Session{u"X11Wanted"_s,
                {{"TESSALINE_PLATFORM", u"x11"_s},
                 {"DISPLAY", u":0"_s},
                 {"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::withLayers,
                true,
                x11},
        Session{u"X11WantedInVain"_s,
                {{"TESSALINE_PLATFORM", u"x11"_s}, {"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::withLayers,
                false,
                problem(u"there is no X display (DISPLAY is not set)"_s)},
        Session{u"WaylandWanted"_s,
                {{"TESSALINE_PLATFORM", u"wayland"_s},
                 {"DISPLAY", u":0"_s},
                 {"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::withoutLayers,
                true,
                ordinaryWindow},
        Session{u"WaylandWantedInVain"_s,
                {{"TESSALINE_PLATFORM", u"wayland"_s}, {"DISPLAY", u":0"_s}},
                C::none,
                true,
                problem(u"there is no Wayland display (WAYLAND_DISPLAY is not set)"_s)},
        Session{u"AutoWanted"_s,
                {{"TESSALINE_PLATFORM", u"auto"_s}, {"DISPLAY", u":0"_s}},
                C::none,
                true,
                x11},
        Session{u"NonsenseWanted"_s,
                {{"TESSALINE_PLATFORM", u"mir"_s}, {"DISPLAY", u":0"_s}},
                C::none,
                true,
                problem(u"TESSALINE_PLATFORM is neither auto nor wayland nor x11: mir"_s)},
        Session{u"QtIsToldToUseX11"_s,
                {{"QT_QPA_PLATFORM", u"xcb"_s}, {"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::withLayers,
                true,
                DisplayChoice{}},
        Session{u"QtIsToldToUseWayland"_s,
                {{"QT_QPA_PLATFORM", u"wayland;xcb"_s}, {"WAYLAND_DISPLAY", u"wayland-0"_s}},
                C::withLayers,
                true,
                DisplayChoice{.hangsOnLayers = true}}),
    [](const auto& session) { return session.param.name.toStdString(); });

} // namespace

} // namespace tessaline
