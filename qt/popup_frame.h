// CPopupFrame: the window of an open popup.
#pragma once

#include "toolkit/popup_window.h"

#include <QHelpEvent>
#include <QWidget>
#include <functional>

namespace orrelix {

class CPopupFrame : public QWidget, private CPopupWindow::CObserver {
public:
    // Opens at the popup's place. What the popup throws goes to `fail`, from within a handler of exceptions.
    CPopupFrame(CPopupWindow& popup, CPersonKey key, QWidget* pParent, std::function<void()> fail);
    // Sees to it that the popup ends, if it hasn't.
    ~CPopupFrame() override;

    std::vector<CPopupCell> GetCells() const {
        return m_pPopup ? m_pPopup->GetCells() : std::vector<CPopupCell>();
    }
    int GetCurrentCell() const { return m_pPopup ? m_pPopup->GetCurrentCell() : -1; }

    bool Shows(const CPopupWindow& popup) const { return m_pPopup == &popup; }

    // Tells the popup that the person, or the window below it, has gone.
    void Deactivate();

    // Lets the popup go, once no event of it is under way, and then deletes the frame.
    void Close();

protected:
    bool event(QEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private:
    void OnPopupChanged(CPopupWindow& popup) override;
    void ShowToolTip(const QHelpEvent& help);
    void ShowToolTip(const CPopupCell& cell, QPoint place);
    void ShowToolTipOfCurrentCell();

    void Play(const std::function<void(CPopupWindow&)>& act);
    void LetGo();

    CPopupWindow* m_pPopup; // null when it has been let go
    CPersonKey m_Key;
    std::function<void()> m_Fail;
    bool m_bClosing = false;
    int m_nEvents = 0;
};

} // namespace orrelix
