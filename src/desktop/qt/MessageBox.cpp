#include "toolkit/MessageBox.h"

#include "desktop/qt/FormWindow.h"
#include "desktop/qt/Look.h"
#include "desktop/qt/QtDesktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <map>

namespace desktop_qt {

using toolkit::MessageBox;

namespace {

QMessageBox::Icon icon(MessageBox::Icon which) {
    switch (which) {
    case MessageBox::Icon::Critical:
        return QMessageBox::Critical;
    case MessageBox::Icon::Question:
        return QMessageBox::Question;
    case MessageBox::Icon::Exclamation:
        return QMessageBox::Warning;
    default:
        return QMessageBox::Information;
    }
}

} // namespace

int QtDesktop::messageBox(const MessageBox& box) {
    application();
    QWidget* const below = QApplication::activeModalWidget();
    QMessageBox window(icon(box.icon), text(box.title), lines(box.text), QMessageBox::NoButton,
                       below ? below : frame());
    window.setWindowModality(modality());
    window.setTextFormat(Qt::PlainText);
    std::map<QAbstractButton*, toolkit::Button> numbers;
    for (const toolkit::Button number : box.answers()) {
        // Buttons of one role keep this order on every desktop.
        QPushButton* const button =
            window.addButton(toolkit::labelOf(number), QMessageBox::ActionRole);
        numbers[button] = number;
        if (number == box.defaultAnswer())
            window.setDefaultButton(button);
        if (number == box.escapeAnswer())
            window.setEscapeButton(button);
    }
    window.exec();
    return numbers[window.clickedButton()];
}

} // namespace desktop_qt
