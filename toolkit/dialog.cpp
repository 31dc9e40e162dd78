#include "toolkit/dialog.h"

#include "toolkit/button.h"
#include "toolkit/combo_box.h"
#include "toolkit/desktop.h"
#include "toolkit/list_box.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/slider_ctrl.h"
#include "toolkit/static.h"

#include <cstdio>
#include <cstdlib>

namespace orrelix {

namespace {

std::unique_ptr<CControl> MakeControl(ControlKind kind) {
    switch (kind) {
    case ControlKind::Static:
        return std::make_unique<CStatic>();
    case ControlKind::Edit:
        return std::make_unique<CEdit>();
    case ControlKind::Button:
        return std::make_unique<CButton>();
    case ControlKind::ListBox:
        return std::make_unique<CListBox>();
    case ControlKind::ListCtrl:
        return std::make_unique<CListCtrl>();
    case ControlKind::ComboBox:
        return std::make_unique<CComboBox>();
    case ControlKind::Spin:
        return std::make_unique<CSpinButtonCtrl>();
    case ControlKind::Slider:
        return std::make_unique<CSliderCtrl>();
    case ControlKind::OwnerDrawnButton:
        break; // the dialog's own, attached
    }
    return nullptr;
}

} // namespace

CDialog::CDialog(const CDialogDescription& description) : m_Description(description) {}

CDialog::~CDialog() = default;

int CDialog::DoModal() {
    if (m_bRunning)
        return IDCANCEL;
    m_bRunning = true;
    m_bEnded = false;
    m_bEnabled = true;
    m_nResult = IDCANCEL;
    struct CRunEnd { // also when memory runs out in a handler
        CDialog& m_Dialog;
        ~CRunEnd() { m_Dialog.DropControls(); }
    } end{*this};
    CreateControls();
    OnInitDialog();
    if (!m_bEnded)
        GetDesktop().RunDialog(*this);
    return m_nResult;
}

void CDialog::CreateControls() {
    ForEachControl(m_Description, [this](const CControlDescription& description, const char*) {
        const auto attached = m_Attached.find(description.m_nId);
        CControl* pControl;
        if (attached != m_Attached.end()) {
            pControl = attached->second;
        } else {
            m_Controls.push_back(MakeControl(description.m_Kind));
            pControl = m_Controls.back().get();
        }
        if (!pControl)
            StopOnWrongItem(description.m_nId);
        m_Items[description.m_nId] = pControl;
        pControl->Create(description, this);
        if (description.m_Kind == ControlKind::Spin)
            Item<CSpinButtonCtrl>(description.m_nId).SetBuddy(&Item<CEdit>(description.m_nBuddy));
    });
}

void CDialog::DropControls() {
    m_Items.clear();
    m_Controls.clear();
    m_bEnded = true;
    m_bRunning = false;
}

CControl* CDialog::FindItem(int nId) const {
    const auto item = m_Items.find(nId);
    return item == m_Items.end() ? nullptr : item->second;
}

void CDialog::StopOnWrongItem(int nId) const {
    std::fprintf(stderr, "The dialog \"%s\" has no such control: %d\n", m_Description.m_pTitle, nId);
    std::abort();
}

void CDialog::Attach(int nId, COwnerDrawnButton& button) {
    m_Attached[nId] = &button;
}

void CDialog::SetHandler(int nId, Notification notification, std::function<void()> handler) {
    m_Handlers[{nId, notification}] = std::move(handler);
}

void CDialog::SetMessageHandler(int nMessage, std::function<void(unsigned long, long)> handler) {
    m_MessageHandlers[nMessage] = std::move(handler);
}

void CDialog::EnableWindow(bool bEnable) {
    m_bEnabled = bEnable;
}

void CDialog::SendMessage(int nMessage, unsigned long nFirst, long nSecond) {
    const auto handler = m_MessageHandlers.find(nMessage);
    if (m_bRunning && handler != m_MessageHandlers.end())
        handler->second(nFirst, nSecond);
}

void CDialog::PersonCloses(CPersonKey) {
    if (m_bEnabled)
        OnCancel();
}

void CDialog::OnInitDialog() {
    UpdateData(false);
}

void CDialog::OnOK() {
    UpdateData(true);
    EndDialog(IDOK);
}

void CDialog::UpdateData(bool bSave) {
    CDataExchange exchange(*this, bSave);
    DoDataExchange(exchange);
}

void CDialog::EndDialog(int nResult) {
    if (!m_bRunning || m_bEnded)
        return;
    m_bEnded = true;
    m_nResult = nResult;
    if (m_pObserver)
        m_pObserver->OnDialogEnded();
}

void CDialog::OnNotify(int nId, Notification notification) {
    const auto handler = m_Handlers.find({nId, notification});
    if (handler != m_Handlers.end())
        handler->second();
    else if (nId == IDOK && notification == Notification::Clicked)
        OnOK();
    else if (nId == IDCANCEL && notification == Notification::Clicked)
        OnCancel();
}

} // namespace orrelix
