// CBoxMark: a sign in an edit box that says what is wrong with its text, to the eye, as a tip and to a screen
// reader. The text stands all the same: nobody is kept from leaving it so.
#pragma once

#include <QAction>
#include <QLineEdit>

namespace orrelix {

class CBoxMark {
public:
    // `heard` is the widget that a screen reader is in when the person is in the box.
    CBoxMark(QLineEdit& box, QWidget& heard) : m_Box(box), m_Heard(heard) {}

    // An empty complaint takes the sign away.
    void Show(const QString& complaint);

    // What the sign takes of a box's width.
    static int WidthIn(const QWidget& box);

private:
    QLineEdit& m_Box;
    QWidget& m_Heard;
    QAction* m_pSign = nullptr; // made when it is first wanted; belongs to the box
};

} // namespace orrelix
