#include "qt/popup_accessible.h"

#include "qt/canvas.h"
#include "qt/popup_frame.h"
#include "qt/text.h"

#include <QAccessibleWidget>
#include <algorithm>

namespace orrelix {

namespace {

// A cell by its number. It looks at the popup each time, which may have closed.
class CCellAccessible : public QAccessibleInterface {
public:
    CCellAccessible(CPopupFrame& frame, int nCell) : m_Frame(frame), m_nCell(nCell) {}

    bool isValid() const override { return m_nCell < static_cast<int>(m_Frame.GetCells().size()); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&m_Frame); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QString text(QAccessible::Text text) const override {
        return text == QAccessible::Name && isValid() ? ToQt(Cell().m_Text) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        const QRect inside = isValid() ? ToQt(Cell().m_Rect) : QRect();
        return {m_Frame.mapToGlobal(inside.topLeft()), inside.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = state.selectable = true;
        state.focused = state.selected = m_Frame.GetCurrentCell() == m_nCell;
        return state;
    }

private:
    CPopupCell Cell() const { return m_Frame.GetCells()[static_cast<size_t>(m_nCell)]; }

    CPopupFrame& m_Frame;
    const int m_nCell;
};

class CPopupAccessible : public QAccessibleWidget {
public:
    explicit CPopupAccessible(CPopupFrame& frame)
        : QAccessibleWidget(&frame, QAccessible::List), m_Frame(frame) {
        for (int nCell = 0; nCell < static_cast<int>(frame.GetCells().size()); ++nCell)
            m_Cells.push_back(QAccessible::registerAccessibleInterface(new CCellAccessible(frame, nCell)));
    }
    ~CPopupAccessible() override {
        for (QAccessible::Id id : m_Cells)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return static_cast<int>(m_Cells.size()); }

    QAccessibleInterface* child(int nIndex) const override {
        const bool bThere = nIndex >= 0 && nIndex < childCount();
        return bThere ? QAccessible::accessibleInterface(m_Cells[static_cast<size_t>(nIndex)]) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* pChild) const override {
        for (int nIndex = 0; nIndex < childCount(); ++nIndex) {
            if (child(nIndex) == pChild)
                return nIndex;
        }
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        for (int nIndex = 0; nIndex < childCount(); ++nIndex) {
            if (child(nIndex)->rect().contains(x, y))
                return child(nIndex);
        }
        return nullptr;
    }

    QAccessibleInterface* focusChild() const override { return child(m_Frame.GetCurrentCell()); }

private:
    CPopupFrame& m_Frame;
    std::vector<QAccessible::Id> m_Cells;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* pObject) {
    auto* pFrame = dynamic_cast<CPopupFrame*>(pObject);
    return pFrame ? new CPopupAccessible(*pFrame) : nullptr;
}

} // namespace

void MakePopupsAccessible() {
    QAccessible::installFactory(MakeAccessible);
}

void AnnounceCurrentCell(CPopupFrame& frame) {
    QAccessibleEvent event(&frame, QAccessible::Focus);
    event.setChild(frame.GetCurrentCell());
    QAccessible::updateAccessibility(&event);
}

} // namespace orrelix
