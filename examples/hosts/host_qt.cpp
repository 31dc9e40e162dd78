// A host with windows, in Qt: its user makes an effect in dialogs on top of its window and sees what it gives the page.
//
//     g++ -std=c++17 -fPIC host_qt.cpp $(pkg-config --cflags --libs VignelOrrelix Qt6Widgets)
#include <QApplication>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <orrelix.hpp>

namespace {

constexpr int kShownLines = 12;

class CHostWindow : public QWidget {
public:
    CHostWindow() {
        setWindowTitle("A host in Qt");
        m_pText->setReadOnly(true);
        m_pText->setLineWrapMode(QPlainTextEdit::NoWrap);
        auto* pButton = new QPushButton("Make an effect…");
        auto* pLayout = new QVBoxLayout(this);
        pLayout->addWidget(pButton);
        pLayout->addWidget(m_pText);
        pButton->setFocus();
        connect(pButton, &QPushButton::clicked, this, [this] {
            try {
                MakeEffect();
            } catch (const std::exception& error) { // Qt's event loop is no place to throw through
                QMessageBox::warning(this, windowTitle(), error.what());
            }
        });
    }

private:
    void MakeEffect() {
        const vignel::Orrelix orrelix;
        orrelix.Inspector().Put("OwnerWindow", std::to_string(winId()));
        if (!orrelix.Config())
            return;
        const QString html = QString::fromStdString(orrelix.GetHTMLBody(0, 1));
        m_pText->setPlainText(html.section('\n', 0, kShownLines - 1));
    }

    QPlainTextEdit* m_pText = new QPlainTextEdit;
};

} // namespace

int main(int nArguments, char** ppArguments) {
    QApplication application(nArguments, ppArguments);
    CHostWindow window;
    window.resize(640, 320);
    window.show();
    return application.exec();
}
