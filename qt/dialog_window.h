// CDialogWindow: the window of a running dialog.
#pragma once

#include "qt/control_adapter.h"
#include "qt/dialog_layout.h"
#include "toolkit/dialog.h"

#include <QDialog>
#include <exception>
#include <vector>

namespace orrelix {

class CDialogWindow : public QDialog, private CDialogObserver, private CStage, private CWidgetMaker {
public:
    // The dialog must outlive the window.
    CDialogWindow(CDialog& dialog, CPersonKey key, QWidget* pParent);
    ~CDialogWindow() override;

    // The widget that shows the control, null when it is none of this dialog.
    QWidget* WidgetOf(const CControl& control) const;

    // Keeps the exception that is being handled, thrown by the dialog or what belongs to it, and closes the
    // window: Qt's event loop is no place to throw through.
    void Fail();
    std::exception_ptr GetFailure() const { return m_pFailure; }

    void reject() override;
    void done(int nResult) override;

private:
    void OnDialogEnded() override { done(Accepted); }
    void Play(const std::function<void(CPersonKey)>& act) override;
    void FinishEditing() override;

    CPlacedControl PlaceControl(const CControlDescription& control, QWidget& parent) override;
    QWidget* PlacePicture(const CDialogItem& picture, QWidget& parent) override;

    void LayOut();
    QWidget* Scrolling(int nRoom);
    void showEvent(QShowEvent* pEvent) override;

    CDialog& m_Dialog;
    CPersonKey m_Key;
    QWidget* m_pBody; // all but the closing buttons
    std::vector<std::unique_ptr<CControlAdapter>> m_Adapters;
    std::exception_ptr m_pFailure;
};

} // namespace orrelix
