#pragma once
#include <QDialog>
#include <memory>

#include "preview_reader.h"

class QLabel;
class QPushButton;
class QStackedWidget;

namespace pv {

class SpectrogramView;
class WaveformView;

// Waveform and spectrogram of the first 30 seconds of one file. A file that
// cannot be read still opens the dialog, with the reason in its label.
class PreviewDialog : public QDialog {
    Q_OBJECT
public:
    enum Page { WaveformPage = 0, SpectrogramPage = 1 };

    explicit PreviewDialog(const QString& path, QWidget* parent = nullptr);

    void showPage(Page page);
    int currentPage() const;
    QString infoText() const;
    const PreviewData& data() const { return *data_; }
    WaveformView* waveformView() const { return waveform_; }
    SpectrogramView* spectrogramView() const { return spectrogram_; }

private:
    QString describe(bool ok, const QString& error) const;

    std::shared_ptr<PreviewData> data_;
    QLabel* info_ = nullptr;
    QStackedWidget* stack_ = nullptr;
    QPushButton* waveButton_ = nullptr;
    QPushButton* spectrumButton_ = nullptr;
    WaveformView* waveform_ = nullptr;
    SpectrogramView* spectrogram_ = nullptr;
};

} // namespace pv
