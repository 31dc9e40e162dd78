#include "qt/moving_picture.h"

#include <QMouseEvent>
#include <QStyle>

namespace orrelix {

namespace {

// As make.mjs makes them.
constexpr QSize kFrameSize(240, 150);
constexpr int kDensity = 2; // pixels of the file for one of the frame, each way
constexpr int kFrameTime = 200;

// What moves by itself for longer than five seconds would have to offer a way to stop it.
constexpr int kPlayingTime = 4800;

} // namespace

CMovingPicture::CMovingPicture(const QAbstractItemView& list, std::vector<const char*> names,
                               QWidget* pParent)
    : QLabel(pParent), m_List(list), m_Names(std::move(names)) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setFixedSize(kFrameSize + QSize(2 * frameWidth(), 2 * frameWidth()));
    connect(&m_Next, &QTimer::timeout, this, [this] { ShowNextFrame(); });
    connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { ShowSelected(); });
    connect(list.model(), &QAbstractItemModel::modelReset, this, [this] { ShowSelected(); });
    ShowSelected();
}

void CMovingPicture::ShowSelected() {
    const QModelIndexList selected = m_List.selectionModel()->selectedRows();
    const int nRow = selected.isEmpty() ? -1 : selected.first().row();
    if (nRow == m_nRow)
        return;
    m_nRow = nRow;
    m_Next.stop();
    const bool bNamed = nRow >= 0 && nRow < static_cast<int>(m_Names.size());
    m_Frames =
        bNamed ? QPixmap(QString(":/pictures/%1.png").arg(m_Names[static_cast<size_t>(nRow)])) : QPixmap();
    setAccessibleName(bNamed ? selected.first().data().toString() : QString());
    if (m_Frames.isNull())
        clear();
    else if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0)
        Play();
    else
        ShowFrame(CountFrames() - 1);
}

void CMovingPicture::Play() {
    m_Playing.start();
    m_Next.start(kFrameTime);
    ShowFrame(0);
}

// Rests on a last frame only, which shows the most.
void CMovingPicture::ShowNextFrame() {
    if (m_nFrame + 1 == CountFrames() && m_Playing.elapsed() + CountFrames() * kFrameTime > kPlayingTime)
        m_Next.stop();
    else
        ShowFrame((m_nFrame + 1) % CountFrames());
}

void CMovingPicture::ShowFrame(int nFrame) {
    m_nFrame = nFrame;
    const QSize size = kFrameSize * kDensity;
    QPixmap frame = m_Frames.copy(0, nFrame * size.height(), size.width(), size.height());
    frame.setDevicePixelRatio(kDensity);
    setPixmap(frame);
}

int CMovingPicture::CountFrames() const {
    return qMax(1, m_Frames.height() / (kFrameSize.height() * kDensity));
}

void CMovingPicture::mousePressEvent(QMouseEvent*) {
    if (m_Next.isActive())
        m_Next.stop();
    else if (!m_Frames.isNull())
        Play();
}

} // namespace orrelix
