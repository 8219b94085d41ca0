#include "prompter/PrompterLook.h"

#include "platform/WindowTraits.h"
#include "prompter/covers/TextCovers.h"
#include "prompter/view/ScriptView.h"
#include "reading/PrompterStatus.h"

#include <QFontDatabase>

#include <cmath>
#include <cstdio>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

PrompterLook::PrompterLook(ReadingSettings& borrowed, const WindowTraits& windowTraits,
                           ScriptView& shownView, TextCovers& textCovers)
    : settings(borrowed), traits(windowTraits), view(shownView), covers(textCovers) {
    update();
    observation = settings.observe([this](const ReadingOptions& before) {
        const bool passesNow = settings.values().clickThrough;
        update();
        if (passesNow != before.clickThrough) Q_EMIT changed();
    });
}

void PrompterLook::update() {
    const ReadingOptions& options = settings.values();
    const ScriptLook before = look;
    look.frame.mirroring = options.mirror;
    look.frame.groundOpacity = traits.showsTranslucency() ? options.groundOpacity : 1.0;
    look.typography = {installedFamily(), options.lineSpacing};
    view.setLook(look);
    covers.setMirroring(options.mirror);
    if (look != before) Q_EMIT changed();
}

/// The family that the options name if there is one here; else none. The fonts that there are,
/// which takes time to find out, are looked for only when there is one to look for.
QString PrompterLook::installedFamily() {
    const auto& wanted = settings.values().fontFamily;
    const bool isMissing = wanted && !QFontDatabase::hasFamily(*wanted);
    if (!isMissing) {
        missingFamily.clear();
        return wanted.value_or(QString());
    }
    if (std::exchange(missingFamily, *wanted) != *wanted) {
        const QString line =
            u"⚠️ The font “%1” is not installed: the default is shown\n"_s.arg(*wanted);
        std::fputs(line.toUtf8().constData(), stdout);
        std::fflush(stdout);
    }
    return {};
}

bool PrompterLook::isClickedThrough() const {
    return settings.values().clickThrough && traits.canSetInputArea();
}

void PrompterLook::tell(PrompterStatus& status) const {
    status.opacityShown = int(std::lround(groundOpacity() * 100.0));
    status.clickedThrough = isClickedThrough();
    status.fontShown = look.typography.family.isEmpty() ? u"default"_s : look.typography.family;
}

} // namespace tessaline
