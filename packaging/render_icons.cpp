// Draws a picture in SVG as icons in PNG, for the sizes that desktop menus ask for.
// Arguments: the picture, the folder of the icon theme, the icon's name, the sizes in pixels.

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>
#include <QTextStream>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    for (const QString& size : arguments.mid(4)) {
        QImageReader picture(arguments[1]);
        picture.setScaledSize({size.toInt(), size.toInt()});
        const QImage icon = picture.read();
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(arguments[2], size);
        const QString file = QStringLiteral("%1/%2.png").arg(folder, arguments[3]);
        if (icon.isNull() || !QDir().mkpath(folder) || !icon.save(file)) {
            QTextStream(stderr) << file << ": " << picture.errorString() << '\n';
            return 1;
        }
    }
}
