// A host that runs a Qt application: qt_host GUEST FILE. Exits with 0 when the effect was made while the
// host's own events went on, and the host lived on after the dialogs, with no window of its own.
#include <QApplication>
#include <QLibrary>
#include <QTimer>

int main(int nArguments, char** arguments) {
    QApplication application(nArguments, arguments);
    int nTicks = 0;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, [&] { nTicks += QApplication::activeModalWidget() ? 1 : 0; });
    ticks.start(1);
    bool bMade = false;
    QTimer::singleShot(0, [&] {
        const auto make =
            reinterpret_cast<bool (*)(const char*)>(QLibrary::resolve(arguments[1], "MakeEffect"));
        bMade = make && make(arguments[2]);
        QTimer::singleShot(200, [&] { QApplication::exit(bMade && nTicks > 5 ? 0 : 1); });
    });
    const int nResult = application.exec();
    return nTicks > 0 ? nResult : 2;
}
