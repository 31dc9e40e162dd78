#include "qt/adapters.h"
#include "qt/quiet_wheel.h"
#include "qt/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>

namespace orrelix {

namespace {

class CSliderWidget : public CQuietWheel<QSlider> {
public:
    explicit CSliderWidget(QWidget* pParent) : CQuietWheel(pParent) { setOrientation(Qt::Horizontal); }
};

class CSliderAdapter : public CControlAdapter {
public:
    CSliderAdapter(CSliderCtrl& slider, const CControlDescription& description, CStage& stage,
                   QWidget& parent)
        : CControlAdapter(slider, stage), m_Slider(slider), m_pBox(new QWidget(&parent)),
          m_pSlider(new CSliderWidget(m_pBox)) {
        m_pSlider->setTickPosition(QSlider::TicksBelow);
        m_pSlider->setAccessibleDescription(ToQt(description.m_pFrom) + " \u2013 " + ToQt(description.m_pTo));
        auto* pLine = new QHBoxLayout(m_pBox);
        pLine->setContentsMargins(0, 0, 0, 0);
        pLine->addWidget(new QLabel(ToQt(description.m_pFrom), m_pBox));
        pLine->addWidget(m_pSlider, 1);
        pLine->addWidget(new QLabel(ToQt(description.m_pTo), m_pBox));
        m_pNumber = new QLabel(m_pBox);
        m_pNumber->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_pNumber->setMinimumWidth(
            m_pNumber->fontMetrics().horizontalAdvance(QString::number(description.m_nUpper) + "0"));
        pLine->addWidget(m_pNumber);
        connect(m_pSlider, &QSlider::valueChanged, this, [this](int nValue) {
            if (!IsShowing())
                Play([&](CPersonKey key) { m_Slider.PersonMoves(key, nValue); });
        });
    }

    QWidget* Widget() const override { return m_pSlider; }
    QWidget* Placed() const override { return m_pBox; }

    void ShowAll() override {
        CShowing showing(*this);
        m_pSlider->setRange(m_Slider.GetLower(), m_Slider.GetUpper());
        m_pSlider->setTickInterval(m_Slider.GetTicFreq());
        m_pSlider->setPageStep(qMax(1, m_Slider.GetTicFreq()));
        m_pSlider->setSingleStep(qMax(1, m_Slider.GetTicFreq() / 10));
        m_pSlider->setValue(m_Slider.GetPos());
        m_pNumber->setNum(m_Slider.GetPos());
    }

private:
    void ShowEnabled() override { m_pBox->setEnabled(m_Slider.IsWindowEnabled()); }

    CSliderCtrl& m_Slider;
    QWidget* m_pBox;
    QSlider* m_pSlider;
    QLabel* m_pNumber; // of the position
};

} // namespace

CAdapterPtr MakeSliderAdapter(CSliderCtrl& slider, const CControlDescription& description, CStage& stage,
                              QWidget& parent) {
    return std::make_unique<CSliderAdapter>(slider, description, stage, parent);
}

} // namespace orrelix
