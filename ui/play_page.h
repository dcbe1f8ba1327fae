#pragma once
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// The Play page: the device name handed to the player, the streaming switch,
// where the played file comes from, Play / Stop Playback and the position.
class PlayPage : public QWidget {
    Q_OBJECT
public:
    explicit PlayPage(QWidget* parent = nullptr);

    QString device() const;
    bool streaming() const;
    // Play is enabled while idle, Stop Playback while playing.
    void setPlaying(bool playing);
    void showPosition(double seconds, double duration);

    QPushButton* playButton() const { return play_; }
    QPushButton* stopButton() const { return stop_; }
    QLineEdit* deviceEdit() const { return device_; }
    QCheckBox* streamBox() const { return stream_; }
    QLabel* positionLabel() const { return position_; }

signals:
    void playClicked();
    void stopClicked();

private:
    QLineEdit* device_ = nullptr;
    QCheckBox* stream_ = nullptr;
    QPushButton* play_ = nullptr;
    QPushButton* stop_ = nullptr;
    QLabel* position_ = nullptr;
};
