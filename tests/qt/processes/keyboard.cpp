// A keyboard for Qt programs whose person isn't there: an input plugin that presses the keys that
// ORRELIX_TEST_KEYS names, one after the other in whatever window is in front, and from then on Escape.
#include <QApplication>
#include <QGenericPlugin>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

namespace orrelix {

class CKeyboard : public QObject {
public:
    CKeyboard() : m_Keys(qEnvironmentVariable("ORRELIX_TEST_KEYS").split(' ', Qt::SkipEmptyParts)) {
        QObject::connect(&m_Next, &QTimer::timeout, this, [this] { Press(); });
        m_Next.start(20);
    }

private:
    void Press() {
        QWidget* pWindow = QApplication::activeModalWidget();
        QWidget* pTarget = pWindow ? pWindow->focusWidget() : nullptr;
        if (!pTarget)
            return;
        const QString name = m_Keys.isEmpty() ? QString("Esc") : m_Keys.takeFirst();
        const int nKey = QKeySequence(name)[0].key();
        for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
            QApplication::postEvent(
                pTarget, new QKeyEvent(type, nKey, Qt::NoModifier, name.size() == 1 ? name : QString()));
    }

    QStringList m_Keys;
    QTimer m_Next;
};

class CKeyboardPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "keyboard.json")

public:
    QObject* create(const QString&, const QString&) override { return new CKeyboard; }
};

} // namespace orrelix

#include "keyboard.moc"
