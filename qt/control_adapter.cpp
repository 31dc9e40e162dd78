#include "qt/control_adapter.h"

#include "qt/text.h"

namespace orrelix {

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

void CControlAdapter::ListenTo(QLineEdit& box, std::function<void(const CString&)> typed) {
    connect(&box, &QLineEdit::textChanged, this, [this, typed = std::move(typed)](const QString& text) {
        if (!IsShowing())
            typed(FromQt(text));
    });
}

void CControlAdapter::ShowText(QLineEdit& box, const CString& shown) {
    const QString text = ToQt(shown);
    if (box.text() == text)
        return;
    CShowing showing(*this);
    const qsizetype nBehind = box.text().size() - box.cursorPosition();
    box.setText(text);
    box.setCursorPosition(box.hasFocus() ? static_cast<int>(qMax<qsizetype>(0, text.size() - nBehind)) : 0);
}

void CControlAdapter::TypeText(QLineEdit& box, const CString& text) {
    CShowing showing(*this);
    box.selectAll();
    box.insert(ToQt(text));
}

} // namespace orrelix
