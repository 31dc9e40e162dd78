#include "qt/adapters.h"
#include "qt/canvas.h"
#include "qt/text.h"

#include <QPushButton>

namespace orrelix {

namespace {

class CButtonAdapter : public CControlAdapter {
public:
    CButtonAdapter(CButton& button, const CControlDescription& description, CStage& stage, QWidget& parent)
        : CControlAdapter(button, stage), m_pCaption(description.m_pCaption),
          m_pButton(new QPushButton(&parent)) {
        m_pButton->setDefault(description.Has(STYLE_DEFAULT));
        connect(m_pButton, &QPushButton::clicked, this, [this, &button] {
            Stage().FinishEditing();
            Play([&](CPersonKey key) { button.PersonClicks(key); });
        });
    }

    QWidget* Widget() const override { return m_pButton; }
    void ShowAll() override { m_pButton->setText(CaptionToQt(m_pCaption, Control().GetWindowText())); }

private:
    const char* m_pCaption;
    QPushButton* m_pButton;
};

class COwnerDrawnWidget : public QAbstractButton {
public:
    COwnerDrawnWidget(COwnerDrawnButton& button, QWidget* pParent)
        : QAbstractButton(pParent), m_Button(button) {
        const QLineEdit likeness; // stands beside an edit box, as a rule
        const CSize size =
            button.Measure({fontMetrics().averageCharWidth() * 8, likeness.sizeHint().height()});
        setFixedSize(size.cx, size.cy);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        CQtCanvas canvas(*this);
        m_Button.Draw(canvas, FromQt(rect()), isDown(), hasFocus());
    }

private:
    COwnerDrawnButton& m_Button;
};

class COwnerDrawnButtonAdapter : public CControlAdapter {
public:
    COwnerDrawnButtonAdapter(COwnerDrawnButton& button, CStage& stage, QWidget& parent)
        : CControlAdapter(button, stage), m_pWidget(new COwnerDrawnWidget(button, &parent)) {
        connect(m_pWidget, &QAbstractButton::clicked, this, [this, &button] {
            Stage().FinishEditing();
            Play([&](CPersonKey key) { button.PersonClicks(key); });
        });
    }

    QWidget* Widget() const override { return m_pWidget; }
    void ShowAll() override { m_pWidget->update(); }

private:
    COwnerDrawnWidget* m_pWidget;
};

} // namespace

CAdapterPtr MakeButtonAdapter(CButton& button, const CControlDescription& description, CStage& stage,
                              QWidget& parent) {
    return std::make_unique<CButtonAdapter>(button, description, stage, parent);
}

CAdapterPtr MakeOwnerDrawnButtonAdapter(COwnerDrawnButton& button, CStage& stage, QWidget& parent) {
    return std::make_unique<COwnerDrawnButtonAdapter>(button, stage, parent);
}

} // namespace orrelix
