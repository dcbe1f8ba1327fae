#pragma once
#include <QWidget>

#include "recorder_args.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

// The Recording page: the backend status and its probe, the capture fields
// that make the record command line, Start / Stop Recording. The recording
// itself is the RecordingController's; this page only shows and collects.
class RecordPage : public QWidget {
    Q_OBJECT
public:
    explicit RecordPage(QWidget* parent = nullptr);

    RecorderSettings settings() const;
    // Start is enabled while idle, Stop while recording.
    void setRecording(bool recording);
    // The probe's verdict: the status text and which controls may be used.
    void setBackendStatus(bool available, const QString& statusText);

    QLabel* statusLabel() const { return status_; }
    QPushButton* probeButton() const { return probe_; }
    QPushButton* startButton() const { return start_; }
    QPushButton* stopButton() const { return stop_; }
    QLineEdit* deviceEdit() const { return device_; }
    QSpinBox* channelsSpin() const { return channels_; }
    QSpinBox* sampleRateSpin() const { return rate_; }
    QSpinBox* durationSpin() const { return duration_; }
    QDoubleSpinBox* headroomSpin() const { return headroom_; }
    QSpinBox* bufferSpin() const { return buffer_; }
    QCheckBox* exclusiveBox() const { return exclusive_; }
    QCheckBox* monitorBox() const { return monitor_; }
    QLineEdit* monitorDeviceEdit() const { return monitorDevice_; }
    QCheckBox* dsdBox() const { return dsd_; }
    QComboBox* dsdModeCombo() const { return dsdMode_; }
    QCheckBox* pdfReportBox() const { return pdf_; }

signals:
    void startClicked();
    void stopClicked();
    void probeClicked();

private:
    void updateDsdMode();

    QLabel* status_ = nullptr;
    QPushButton* probe_ = nullptr;
    QLineEdit* device_ = nullptr;
    QSpinBox* channels_ = nullptr;
    QSpinBox* rate_ = nullptr;
    QSpinBox* duration_ = nullptr;
    QDoubleSpinBox* headroom_ = nullptr;
    QSpinBox* buffer_ = nullptr;
    QCheckBox* exclusive_ = nullptr;
    QCheckBox* monitor_ = nullptr;
    QLineEdit* monitorDevice_ = nullptr;
    QCheckBox* dsd_ = nullptr;
    QComboBox* dsdMode_ = nullptr;
    QCheckBox* pdf_ = nullptr;
    QPushButton* start_ = nullptr;
    QPushButton* stop_ = nullptr;
    bool backendUsable_ = true; // unprobed counts as usable
};
