#include "frame/MainCode_ZW.h"

#include "common/ErrorReport.h"
#include "common/Trap.h"
#include "common/cLocalSettings.h"
#include "frame/MDIForm1.h"
#include "frame/frmSplash.h"
#include "platform/Platform.h"
#include "storage/cQuorvantaLite.h"

namespace quorvanta {

using toolkit::App;

namespace {
constexpr const char* kHelpFile = "quorvantalite.hlp";

// How far the run is. What has not been read whole is not to be written: a box about a line of the
// file can stand for long, and the frame come up beside it.
enum class Stage { Reading, Running, Saving, Leaving };
Stage stage = Stage::Running;

bool isEnding() {
    return stage == Stage::Saving || stage == Stage::Leaving;
}

void save() {
    if (stage == Stage::Running) {
        stage = Stage::Saving;
        failuresOff([](auto step) { step([] { cQuorvantaLite().WriteLottoFile(); }); });
    }
    stage = Stage::Leaving;
}

// Brings the stage back that was: the process of a test goes on behind its end.
class StageKept {
public:
    StageKept() = default;
    explicit StageKept(Stage now) { stage = now; }
    StageKept(const StageKept&) = delete;
    ~StageKept() { stage = before_; }

private:
    Stage before_ = stage;
};

} // namespace

void Main() {
    toolkit::Form::untrapped = [](const toolkit::Form& form, const platform::RuntimeError& error) {
        ReportUntrapped(error, form.name());
    };
    const StageKept reading(Stage::Reading);
    trapped("Sub Main", [&](auto step) {
        cLocalSettings local;
        cQuorvantaLite store;
        if (App.PrevInstance)
            platform::current().process.end();
        step([&] { platform::current().random.seed(); });
        gintLanguage = 1;
        step([&] { gstrWinDirectory = local.prpWinDirectory(); });
        step([&] { gstrWinSysDirectory = local.prpWinSysDirectory(); });
        step([&] { App.HelpFile = platform::current().files.join(App.Path, kHelpFile); });
        step([&] { WriteSystemData(); });
        step([&] { frmSplash::the().Show(); });
        step([&] { store.ReadLottoFile(); });
    });
}

void EndApp(toolkit::Form& frm) {
    // Unloading the frame asks its QueryUnload, which ends the run in its turn.
    if (isEnding())
        return;
    const StageKept kept;
    [[maybe_unused]] const auto keep = frm.shared_from_this(); // it is among the forms that go
    save();
    failuresOff([&](auto step) {
        for (int i = toolkit::Forms.Count() - 1; i >= 0; --i)
            step([&] { toolkit::Forms(i).Unload(); });
        step([&] { frm.Unload(); });
    });
    platform::current().process.end();
}

void EndRunForSystem() {
    if (isEnding())
        return; // the end that runs may be asking what to do about a save that fails
    if (MDIForm1* const frame = MDIForm1::ifLoaded())
        frame->Unload(toolkit::AppWindows);
    const StageKept kept;
    save();
    platform::current().process.end();
}

void EndRunWithoutDisplay() {
    toolkit::install(nullptr); // whose boxes answer themselves
    const StageKept kept;
    if (stage == Stage::Saving)
        stage = Stage::Running; // it stopped at a box, which nobody will answer
    save();
    platform::current().process.end();
}

} // namespace quorvanta
