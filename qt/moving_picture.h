// CMovingPicture: a small moving picture of what is selected in a list.
//
// A picture is the file :/pictures/NAME.png of the library's resources: frames of one size, one below the other,
// made by qt/pictures/make.mjs. It plays for a few seconds and then rests on its last frame; a click plays it
// again or stops it. Who has turned animations off in the desktop's settings sees the last frame alone.
#pragma once

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>
#include <vector>

namespace orrelix {

class CMovingPicture : public QLabel {
public:
    // names: by row of the list, which must outlive the picture.
    CMovingPicture(const QAbstractItemView& list, std::vector<const char*> names, QWidget* pParent);

    bool IsMoving() const { return m_Next.isActive(); }

protected:
    void mousePressEvent(QMouseEvent* pEvent) override;

private:
    void ShowSelected();
    void Play();
    void ShowNextFrame();
    void ShowFrame(int nFrame);
    int CountFrames() const;

    const QAbstractItemView& m_List;
    const std::vector<const char*> m_Names;
    int m_nRow = -1; // of the list, whose picture this is
    QPixmap m_Frames;
    int m_nFrame = 0;
    QTimer m_Next;
    QElapsedTimer m_Playing;
};

} // namespace orrelix
