#include "qt/control_adapter.h"

CControlAdapter::CControlAdapter(CControl& control, CStage& stage) : m_Control(control), m_Stage(stage) {
    m_Control.SetObserver(this);
}

CControlAdapter::~CControlAdapter() {
    m_Control.SetObserver(nullptr);
}

void CControlAdapter::ShowEnabled() {
    Widget()->setEnabled(m_Control.IsWindowEnabled());
}

void CControlAdapter::OnControlChanged(ControlChange change, int nFirst, int nCount) {
    if (change == ControlChange::Enabled)
        ShowEnabled();
    else if (change == ControlChange::Focus)
        Widget()->setFocus(Qt::OtherFocusReason);
    else
        Show(change, nFirst, nCount);
}

void ShowText(QLineEdit& box, const QString& text) {
    if (box.text() == text)
        return;
    const qsizetype nBehind = box.text().size() - box.cursorPosition();
    box.setText(text);
    box.setCursorPosition(box.hasFocus() ? static_cast<int>(qMax<qsizetype>(0, text.size() - nBehind)) : 0);
}
