#include "qt/adapters.h"
#include "qt/box_mark.h"
#include "qt/quiet_wheel.h"
#include "qt/text.h"

#include <QAbstractSpinBox>
#include <QRegularExpression>
#include <QStyleOptionSpinBox>

namespace orrelix {

namespace {

// A box with arrows for any text: what a number is and where it ends is the controls' matter.
class CNumberBox : public CQuietWheel<QAbstractSpinBox> {
public:
    CNumberBox(CSpinButtonCtrl& spin, QWidget* pParent) : CQuietWheel(pParent), m_Spin(spin) {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    std::function<void(int)> m_OnSteps;
    QLineEdit& Line() const { return *lineEdit(); }

    void stepBy(int nSteps) override { m_OnSteps(nSteps); }

    QSize sizeHint() const override {
        QStyleOptionSpinBox option;
        initStyleOption(&option);
        const QString widest = QString(qMax<qsizetype>(6, QString::number(m_Spin.GetUpper()).size()), '0');
        const QSize contents(fontMetrics().horizontalAdvance(widest) + CBoxMark::WidthIn(*this),
                             Line().sizeHint().height());
        return style()->sizeFromContents(QStyle::CT_SpinBox, &option, contents, this);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    StepEnabled stepEnabled() const override {
        if (!m_Spin.IsWindowEnabled())
            return StepNone;
        bool bNumber = false;
        const int nNumber = Line().text().toInt(&bNumber);
        StepEnabled steps = StepUpEnabled | StepDownEnabled;
        steps.setFlag(StepUpEnabled, !bNumber || nNumber != m_Spin.GetUpper());
        steps.setFlag(StepDownEnabled, !bNumber || nNumber != m_Spin.GetLower());
        return steps;
    }

private:
    CSpinButtonCtrl& m_Spin;
};

class CNumberAdapter : public CControlAdapter {
public:
    CNumberAdapter(CEdit& edit, CSpinButtonCtrl& spin, CStage& stage, QWidget& parent)
        : CControlAdapter(edit, stage), m_Spin(spin), m_pBox(new CNumberBox(spin, &parent)),
          m_Mark(m_pBox->Line(), *m_pBox), m_SpinEar(*m_pBox) {
        m_Spin.SetObserver(&m_SpinEar);
        m_pBox->m_OnSteps = [this](int nSteps) {
            m_bTurning = true;
            Play([&](CPersonKey key) { m_Spin.PersonTurns(key, nSteps); });
            m_bTurning = false;
        };
        ListenTo(m_pBox->Line(), [this, &edit](const CString& text) {
            Play([&](CPersonKey key) { edit.PersonTypes(key, text); });
            ShowAll();
        });
    }
    ~CNumberAdapter() override { m_Spin.SetObserver(nullptr); }

    QWidget* Widget() const override { return m_pBox; }

    void ShowAll() override {
        if (m_bTurning)
            TypeText(m_pBox->Line(), Control().GetWindowText());
        else
            ShowText(m_pBox->Line(), Control().GetWindowText());
        static const QRegularExpression number("^\\s*[+-]?\\d");
        const QString text = m_pBox->Line().text();
        m_Mark.Show(text.isEmpty() || number.match(text).hasMatch() ? "" : "Not a number");
    }

private:
    // The position shows as the edit box's text; what is left to show is which arrows work.
    class CSpinEar : public orrelix::CControlObserver {
    public:
        explicit CSpinEar(QWidget& box) : m_Box(box) {}
        void OnControlChanged(ControlChange, int, int) override { m_Box.update(); }

    private:
        QWidget& m_Box;
    };

    CSpinButtonCtrl& m_Spin;
    CNumberBox* m_pBox;
    CBoxMark m_Mark;
    bool m_bTurning = false;
    CSpinEar m_SpinEar;
};

} // namespace

CAdapterPtr MakeNumberAdapter(CEdit& edit, CSpinButtonCtrl& spin, CStage& stage, QWidget& parent) {
    return std::make_unique<CNumberAdapter>(edit, spin, stage, parent);
}

} // namespace orrelix
