#include "support/TestPlatform.h"

#include "platform/NotificationCenter.h"
#include "support/FakeAccessibilityTrust.h"
#include "support/FakeActivationPolicy.h"
#include "support/FakeApplicationLookup.h"
#include "support/FakeBundleInformation.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeEventTapMaker.h"
#include "support/FakeFileChooser.h"
#include "support/FakeFileIcons.h"
#include "support/FakeFolderChooser.h"
#include "support/FakeGlobalKeyMonitor.h"
#include "support/FakeHttpPoster.h"
#include "support/FakeLocalKeyMonitor.h"
#include "support/FakeMainQueue.h"
#include "support/FakeMediaControls.h"
#include "support/FakeNativeLook.h"
#include "support/FakePasteboard.h"
#include "support/FakeProcessRunner.h"
#include "support/FakeScreens.h"
#include "support/FakeStatusArea.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/FakeUrlOpener.h"
#include "support/FakeUserDefaults.h"
#include "support/FakeWebServer.h"
#include "support/FakeWindowTraits.h"

namespace tessaline {

namespace {

template <typename Fake, typename Port>
Fake& put(std::unique_ptr<Port>& place) {
    auto fake = std::make_unique<Fake>();
    Fake& kept = *fake;
    place = std::move(fake);
    return kept;
}

} // namespace

TestPlatform::TestPlatform()
    : mainQueue(put<FakeMainQueue>(platform.mainQueue))
    , timers(put<FakeTimerMaker>(platform.timers))
    , notifications(put<NotificationCenter>(platform.notifications))
    , processes(put<FakeProcessRunner>(platform.processes))
    , urlOpener(put<FakeUrlOpener>(platform.urlOpener))
    , defaults(put<FakeUserDefaults>(platform.defaults))
    , http(put<FakeHttpPoster>(platform.http))
    , web(put<FakeWebServer>(platform.web))
    , bundle(put<FakeBundleInformation>(platform.bundle))
    , renderTasks(put<FakeTaskRunner>(platform.renderTasks))
    , fileTasks(put<FakeTaskRunner>(platform.fileTasks))
    , scriptTasks(put<FakeTaskRunner>(platform.scriptTasks))
    , queryTasks(put<FakeTaskRunner>(platform.queryTasks))
    , pasteTasks(put<FakeTaskRunner>(platform.pasteTasks))
    , historyTasks(put<FakeTaskRunner>(platform.historyTasks))
    , screens(put<FakeScreens>(platform.screens))
    , displayLinks(put<FakeDisplayLinkMaker>(platform.displayLinks))
    , windowTraits(put<FakeWindowTraits>(platform.windowTraits))
    , pasteboard(put<FakePasteboard>(platform.pasteboard))
    , trust(put<FakeAccessibilityTrust>(platform.trust))
    , localKeys(put<FakeLocalKeyMonitor>(platform.localKeys))
    , globalKeys(put<FakeGlobalKeyMonitor>(platform.globalKeys))
    , eventTaps(put<FakeEventTapMaker>(platform.eventTaps))
    , look(put<FakeNativeLook>(platform.look))
    , activationPolicy(put<FakeActivationPolicy>(platform.activationPolicy))
    , statusArea(put<FakeStatusArea>(platform.statusArea))
    , applications(put<FakeApplicationLookup>(platform.applications))
    , icons(put<FakeFileIcons>(platform.icons))
    , folderChooser(put<FakeFolderChooser>(platform.folderChooser))
    , fileChooser(put<FakeFileChooser>(platform.fileChooser))
    , media(put<FakeMediaControls>(platform.media)) {}

TestPlatform::~TestPlatform() = default;

} // namespace tessaline
