#include "qt/adapters.h"
#include "qt/text.h"

#include <QPlainTextEdit>

namespace orrelix {

namespace {

// What a box has room for, in characters: a colour or a number; an address.
constexpr int kShortText = 7;
constexpr int kUsualText = 32;

class CLineBox : public QLineEdit {
public:
    CLineBox(QWidget* pParent, int nCharacters) : QLineEdit(pParent), m_nCharacters(nCharacters) {}

    QSize sizeHint() const override { return {WidthOf(m_nCharacters), QLineEdit::sizeHint().height()}; }
    QSize minimumSizeHint() const override {
        return {WidthOf(qMin(m_nCharacters, kShortText)), QLineEdit::minimumSizeHint().height()};
    }

private:
    int WidthOf(int nCharacters) const {
        return fontMetrics().horizontalAdvance(QString(nCharacters, '0')) +
               fontMetrics().averageCharWidth() * 2;
    }

    int m_nCharacters;
};

class CLineAdapter : public CControlAdapter {
public:
    CLineAdapter(CEdit& edit, const CControlDescription& description, bool bShort, CStage& stage,
                 QWidget& parent)
        : CControlAdapter(edit, stage), m_Edit(edit),
          m_pBox(new CLineBox(&parent, bShort ? kShortText : kUsualText)) {
        if (description.Has(STYLE_DIGITS))
            m_pBox->setInputMethodHints(Qt::ImhDigitsOnly);
        ListenTo(*m_pBox, [this](const CString& text) {
            Play([&](CPersonKey key) { m_Edit.PersonTypes(key, m_Edit.FromPerson(text)); });
            ShowAll(); // the control may have taken only a part of it
        });
    }

    QWidget* Widget() const override { return m_pBox; }
    void ShowAll() override { ShowText(*m_pBox, m_Edit.ForPerson()); }

private:
    CEdit& m_Edit;
    CLineBox* m_pBox;
};

class CTextArea : public QPlainTextEdit {
public:
    explicit CTextArea(QWidget* pParent) : QPlainTextEdit(pParent) { setTabChangesFocus(true); }

    QSize sizeHint() const override { return OfLines(40, 5); }
    QSize minimumSizeHint() const override { return OfLines(16, 3); }

    // Lines end in a line feed. Unlike toPlainText, this leaves every other character as it is.
    QString Text() const { return document()->toRawText().replace(QChar::ParagraphSeparator, '\n'); }

protected:
    // With Shift, Enter would put in a character that isn't the end of a line.
    void keyPressEvent(QKeyEvent* pEvent) override {
        if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter)
            pEvent->setModifiers(pEvent->modifiers() & ~Qt::ShiftModifier);
        QPlainTextEdit::keyPressEvent(pEvent);
    }

private:
    QSize OfLines(int nCharacters, int nLines) const {
        const int nBorder = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
        return {fontMetrics().averageCharWidth() * nCharacters + nBorder,
                fontMetrics().lineSpacing() * nLines + nBorder};
    }
};

class CTextAreaAdapter : public CControlAdapter {
public:
    CTextAreaAdapter(CEdit& edit, CStage& stage, QWidget& parent)
        : CControlAdapter(edit, stage), m_pArea(new CTextArea(&parent)) {
        connect(m_pArea, &QPlainTextEdit::textChanged, this, [this, &edit] {
            if (IsShowing())
                return;
            Play([&](CPersonKey key) { edit.PersonTypes(key, LinesFromQt(m_pArea->Text())); });
            ShowAll();
        });
    }

    QWidget* Widget() const override { return m_pArea; }

    void ShowAll() override {
        const QString text = LinesToQt(Control().GetWindowText());
        if (m_pArea->Text() == text)
            return;
        CShowing showing(*this);
        m_pArea->setPlainText(text);
    }

private:
    CTextArea* m_pArea;
};

} // namespace

CAdapterPtr MakeEditAdapter(CEdit& edit, const CControlDescription& description, bool bShort, CStage& stage,
                            QWidget& parent) {
    if (edit.IsMultiLine())
        return std::make_unique<CTextAreaAdapter>(edit, stage, parent);
    return std::make_unique<CLineAdapter>(edit, description, bShort, stage, parent);
}

} // namespace orrelix
