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
bool ending = false; // EndApp runs
} // namespace

void Main() {
    toolkit::Form::untrapped = [](const toolkit::Form& form, const platform::RuntimeError& error) {
        ReportUntrapped(error, form.name());
    };
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
    if (ending)
        return;
    struct Guard {
        Guard() { ending = true; }
        ~Guard() { ending = false; }
    } guard;

    const auto keep = frm.shared_from_this(); // it is among the forms that go
    failuresOff([&](auto step) {
        step([&] { cQuorvantaLite().WriteLottoFile(); });
        for (int i = toolkit::Forms.Count() - 1; i >= 0; --i)
            step([&] { toolkit::Forms(i).Unload(); });
        step([&] { frm.Unload(); });
    });
    platform::current().process.end();
}

void EndRunForSystem() {
    if (ending)
        return; // the end that runs may be asking what to do about a save that fails
    if (MDIForm1* const frame = MDIForm1::ifLoaded())
        frame->Unload(toolkit::AppWindows);
    platform::current().process.end();
}

} // namespace quorvanta
