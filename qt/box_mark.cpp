#include "qt/box_mark.h"

#include <QStyle>

namespace orrelix {

void CBoxMark::Show(const QString& complaint) {
    if (complaint.isEmpty() && !m_pSign)
        return;
    if (!m_pSign)
        m_pSign = m_Box.addAction(m_Box.style()->standardIcon(QStyle::SP_MessageBoxWarning),
                                  QLineEdit::TrailingPosition);
    m_pSign->setVisible(!complaint.isEmpty());
    m_pSign->setToolTip(complaint);
    m_Heard.setToolTip(complaint);
    m_Heard.setAccessibleDescription(complaint);
}

int CBoxMark::WidthIn(const QWidget& box) {
    const int nIcon = box.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &box);
    return nIcon + nIcon / 2; // and the room around it
}

} // namespace orrelix
