#include "desktop/qt/Accessibility.h"
#include "desktop/qt/FormWindow.h"

namespace desktop_qt {

std::unique_ptr<FormPeer> makeTopLevelWindow(toolkit::Form& form) {
    const Qt::WindowFlags flags = form.Borderless
                                      ? Qt::SplashScreen
                                      : Qt::Dialog | Qt::WindowTitleHint |
                                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    auto* const window = new FormWindow<QWidget>(form, flags);
    describeAsDialog(*window);
    window->setWindowTitle(text(form.Caption));
    QWidget* const content = makeContent(form, window);
    window->setFixedSize(content->size());
    if (!form.Borderless)
        form.setBorders(twips(windowBorders.width()), twips(windowBorders.height()));
    return std::make_unique<FormPeer>(form, window);
}

} // namespace desktop_qt
