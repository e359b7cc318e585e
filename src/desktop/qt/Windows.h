// The windows of forms: the frame, the pages inside it, and windows of their own.
#pragma once

#include "toolkit/Form.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

namespace desktop_qt {

// The desktop's side of a form. Its window goes with it.
class FormPeer : public toolkit::Peer {
public:
    FormPeer(toolkit::Form& form, QWidget* window) : form_(form), window_(window) {}
    ~FormPeer() override;

    void changed(toolkit::Prop which) override;
    virtual void show();
    virtual void bringForward() { show(); }
    QWidget* window() const { return window_; }

protected:
    toolkit::Form& form_;
    QPointer<QWidget> window_;
};

class FrameWindow : public QMainWindow {
public:
    explicit FrameWindow(toolkit::Form& form);

    QMdiArea* area() const { return area_; }
    // The active page's menu takes the place of the frame's.
    void swapMenus();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void takeGeometry();
    void showBackground();

    QMdiArea* area_;
    QList<QAction*> menus_;
    toolkit::Place wanted_; // where the program has put it, in twips
    QRect shown_;           // and where it was shown instead, within reach on its screen
};

std::unique_ptr<FormPeer> makeFrameWindow(toolkit::Form& form);
std::unique_ptr<FormPeer> makePageWindow(toolkit::Form& form, FrameWindow& frame);
std::unique_ptr<FormPeer> makeTopLevelWindow(toolkit::Form& form);

// The form that a window shows, or nullptr.
toolkit::Form* formOf(const QWidget* window);

} // namespace desktop_qt
