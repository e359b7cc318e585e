// The yardstick for the program's start and memory: the least that a Qt program of its kind shows,
// a window with an area of child windows, a toolbar and 49 labels. It stays until it is ended; with
// --until-shown it ends once it is painted, and prints what it has taken.
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QPaintEvent>
#include <QTimer>
#include <QToolBar>

#include <fstream>
#include <iostream>
#include <string>

#include <sys/resource.h>

namespace {

class LastLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        // Behind this event the window is handed to the screen.
        if (QCoreApplication::arguments().contains(QStringLiteral("--until-shown")))
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
};

void tellTaken() {
    rusage taken{};
    getrusage(RUSAGE_SELF, &taken);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    std::cout << "processor ms: " << milliseconds(taken.ru_utime) + milliseconds(taken.ru_stime)
              << "\n";
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS"))
            std::cout << line << "\n";
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Bare window"));
    window.resize(727, 515);
    auto* const bar = window.addToolBar(QString());
    for (int i = 1; i <= 6; ++i)
        bar->addAction(QString::number(i));
    auto* const content = new QWidget;
    auto* const grid = new QGridLayout(content);
    grid->addWidget(new QMdiArea, 0, 0, 1, 7);
    for (int n = 1; n <= 49; ++n)
        grid->addWidget(n < 49 ? new QLabel(QString::number(n)) : new LastLabel("49"), (n + 6) / 7,
                        (n - 1) % 7);
    window.setCentralWidget(content);
    window.show();
    const int result = QApplication::exec();
    if (QCoreApplication::arguments().contains(QStringLiteral("--until-shown")))
        tellTaken();
    return result;
}
