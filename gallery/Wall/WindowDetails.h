#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QString>
#include <QWidget>

class QLabel;

namespace UICommonMdl {
class KvVolumeButton;
}

namespace OperatorClient {

class StartLabel;

/// What is told of a window of the wall.
struct WindowFacts
{
    QString source; ///< the camera's or the file's name
    int screen = 0;
    int window = 0;
    KvGUI::StructScaleRect rect{};
    int zValue = 0;
    bool audible = false;
    int volume = 0; ///< per cent
};

/// The content of the details panel: the facts of one window and its sound. It knows nothing of a wall.
class WindowDetails : public QWidget
{
    Q_OBJECT

public:
    explicit WindowDetails(QWidget* parent = nullptr);

    void Show(const WindowFacts& facts); ///< emits nothing
    void ShowCount(int windows); ///< how many are selected, where that is not one

Q_SIGNALS:
    void SignalSound(bool on); ///< by the operator
    void SignalVolume(int volume); ///< by the operator, per cent

private:
    QLabel* AddRow(QString (*name)());
    void AddSoundRow();

    StartLabel* m_pHeading;
    QWidget* m_pFacts;
    QLabel* m_pScreen = nullptr;
    QLabel* m_pWindow = nullptr;
    QLabel* m_pPlace = nullptr;
    QLabel* m_pSize = nullptr;
    QLabel* m_pOrder = nullptr;
    UICommonMdl::KvVolumeButton* m_pVolume = nullptr;
};

} // namespace OperatorClient
