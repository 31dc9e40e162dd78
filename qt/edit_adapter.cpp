#include "platform/files.h"
#include "qt/adapters.h"
#include "qt/box_mark.h"
#include "qt/text.h"

#include <QPlainTextEdit>
#include <QRegularExpression>

namespace orrelix {

namespace {

// How many characters a box has room for, and at least, when the window is small.
constexpr int kDigits = 7;
constexpr int kUsualText = 32;
constexpr int kLeastText = 12;

bool IsHexColour(const QString& text) {
    static const QRegularExpression sixDigits("^[0-9A-Fa-f]{6}$");
    return sixDigits.match(text).hasMatch();
}

bool MayBecomeHexColour(const QString& text) {
    static const QRegularExpression someDigits("^[0-9A-Fa-f]{0,6}$");
    return someDigits.match(text).hasMatch();
}

// A box for a colour or for digits is as wide as these need it and no wider.
class CLineBox : public QLineEdit {
public:
    CLineBox(QWidget* pParent, const CControlDescription& description)
        : QLineEdit(pParent), m_bColour(description.Has(STYLE_COLOUR)),
          m_bShort(m_bColour || description.Has(STYLE_DIGITS)) {
        if (m_bShort)
            setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override { return {WidthOf(kUsualText), QLineEdit::sizeHint().height()}; }
    QSize minimumSizeHint() const override {
        return {WidthOf(kLeastText), QLineEdit::minimumSizeHint().height()};
    }

private:
    int WidthOf(int nCharacters) const {
        const QString widest = m_bColour  ? QString("dddddd")
                               : m_bShort ? QString(kDigits, '0')
                                          : QString(nCharacters, '0');
        const int nAround = fontMetrics().averageCharWidth() * 2;
        return fontMetrics().horizontalAdvance(widest) + nAround + (m_bColour ? CBoxMark::WidthIn(*this) : 0);
    }

    const bool m_bColour;
    const bool m_bShort;
};

class CLineAdapter : public CControlAdapter {
public:
    CLineAdapter(CEdit& edit, const CControlDescription& description, CStage& stage, QWidget& parent)
        : CControlAdapter(edit, stage), m_Edit(edit), m_pBox(new CLineBox(&parent, description)),
          m_Mark(*m_pBox, *m_pBox), m_bColour(description.Has(STYLE_COLOUR)),
          m_bPath(description.Has(STYLE_PATH)) {
        if (description.Has(STYLE_DIGITS))
            m_pBox->setInputMethodHints(Qt::ImhDigitsOnly);
        ListenTo(*m_pBox, [this](const CString& text) {
            Play([&](CPersonKey key) { m_Edit.PersonTypes(key, m_Edit.FromPerson(text)); });
            ShowAll(); // the control may have taken only a part of it
        });
        connect(m_pBox, &QLineEdit::editingFinished, this, [this] { ShowMark(); });
    }

    QWidget* Widget() const override { return m_pBox; }

    void ShowAll() override {
        ShowText(*m_pBox, m_Edit.ForPerson());
        ShowMark();
    }

private:
    void ShowMark() {
        if (m_bColour)
            m_Mark.Show(IsColour() ? "" : "Not a color: a color is six digits from 0 to 9 and a to f");
        if (m_bPath)
            m_Mark.Show(IsFile() ? "" : "There is no such file");
    }

    // Nobody is told of what is still being typed.
    bool IsColour() const {
        const QString text = m_pBox->text();
        return text.isEmpty() || IsHexColour(text) || (m_pBox->hasFocus() && MayBecomeHexColour(text));
    }
    bool IsFile() const {
        const CString& path = m_Edit.GetWindowText();
        return path.IsEmpty() || m_pBox->hasFocus() || FileExists(path);
    }

    CEdit& m_Edit;
    CLineBox* m_pBox;
    CBoxMark m_Mark;
    const bool m_bColour;
    const bool m_bPath;
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

CAdapterPtr MakeEditAdapter(CEdit& edit, const CControlDescription& description, CStage& stage,
                            QWidget& parent) {
    if (edit.IsMultiLine())
        return std::make_unique<CTextAreaAdapter>(edit, stage, parent);
    return std::make_unique<CLineAdapter>(edit, description, stage, parent);
}

} // namespace orrelix
