#include "qt/adapters.h"
#include "qt/canvas.h"
#include "qt/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace orrelix {

namespace {

// How many characters a text beside a button makes its window wide for, and how many it leaves it at least.
constexpr int kMostBeside = 40;
constexpr int kLeastBeside = 8;

// One line, of which what doesn't fit is left out; a tip tells it then.
class CElidedLabel : public QLabel {
public:
    explicit CElidedLabel(QWidget* pParent) : QLabel(pParent) { setTextFormat(Qt::PlainText); }

    QSize sizeHint() const override {
        const int nWhole = fontMetrics().horizontalAdvance(m_Whole) + 1; // eliding takes what fits exactly
        return {qBound(WidthOf(kLeastBeside), nWhole, WidthOf(kMostBeside)), QLabel::sizeHint().height()};
    }
    QSize minimumSizeHint() const override {
        return {WidthOf(kLeastBeside), QLabel::minimumSizeHint().height()};
    }

    void ShowWhole(const QString& text) {
        m_Whole = text;
        updateGeometry();
        Elide();
    }

protected:
    void resizeEvent(QResizeEvent* pEvent) override {
        QLabel::resizeEvent(pEvent);
        Elide();
    }

private:
    int WidthOf(int nCharacters) const { return fontMetrics().averageCharWidth() * nCharacters; }

    void Elide() {
        setText(fontMetrics().elidedText(m_Whole, Qt::ElideRight, contentsRect().width()));
        setToolTip(text() == m_Whole ? QString() : PlainTip(m_Whole));
    }

    QString m_Whole;
};

// A button, and beside it what it leads to, if the dialog tells.
class CButtonAdapter : public CControlAdapter {
public:
    CButtonAdapter(CButton& button, const CControlDescription& description,
                   std::function<CString()> textBeside, CStage& stage, QWidget& parent)
        : CControlAdapter(button, stage), m_pCaption(description.m_pCaption),
          m_TextBeside(std::move(textBeside)), m_pButton(new QPushButton(&parent)), m_pPlaced(m_pButton) {
        m_pButton->setDefault(description.Has(STYLE_DEFAULT));
        if (m_TextBeside)
            AddLabel(parent);
        connect(m_pButton, &QPushButton::clicked, this, [this, &button] {
            Stage().FinishEditing();
            Play([&](CPersonKey key) { button.PersonClicks(key); });
        });
    }

    QWidget* Widget() const override { return m_pButton; }
    QWidget* Placed() const override { return m_pPlaced; }

    void ShowAll() override {
        m_pButton->setText(CaptionToQt(m_pCaption, Control().GetWindowText()));
        ShowAfterAct();
    }

    void ShowAfterAct() override {
        if (!m_TextBeside)
            return;
        const QString text = ToQt(m_TextBeside());
        m_pLabel->ShowWhole(text);
        m_pButton->setAccessibleDescription(text);
    }

private:
    void AddLabel(QWidget& parent) {
        m_pPlaced = new QWidget(&parent);
        m_pLabel = new CElidedLabel(m_pPlaced);
        auto* pLine = new QHBoxLayout(m_pPlaced);
        pLine->setContentsMargins(0, 0, 0, 0);
        pLine->addWidget(m_pButton);
        pLine->addWidget(m_pLabel, 1);
    }

    const char* m_pCaption;
    const std::function<CString()> m_TextBeside;
    QPushButton* m_pButton;
    QWidget* m_pPlaced; // the button, or a box around it and the label
    CElidedLabel* m_pLabel = nullptr;
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

CAdapterPtr MakeButtonAdapter(CButton& button, const CControlDescription& description,
                              std::function<CString()> textBeside, CStage& stage, QWidget& parent) {
    return std::make_unique<CButtonAdapter>(button, description, std::move(textBeside), stage, parent);
}

CAdapterPtr MakeOwnerDrawnButtonAdapter(COwnerDrawnButton& button, CStage& stage, QWidget& parent) {
    return std::make_unique<COwnerDrawnButtonAdapter>(button, stage, parent);
}

} // namespace orrelix
