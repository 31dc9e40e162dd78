// CQuietWheel: a widget that the wheel changes only while it has the focus, so that nobody changes a value by
// scrolling past it.
#pragma once

#include <QWheelEvent>

namespace orrelix {

template <class TWidget>
class CQuietWheel : public TWidget {
public:
    explicit CQuietWheel(QWidget* pParent) : TWidget(pParent) {
        this->setFocusPolicy(Qt::StrongFocus); // not by the wheel itself
    }

protected:
    void wheelEvent(QWheelEvent* pEvent) override {
        if (this->hasFocus())
            TWidget::wheelEvent(pEvent);
        else
            pEvent->ignore();
    }
};

} // namespace orrelix
