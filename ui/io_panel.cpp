#include "io_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "audio_files.h"
#include "file_list_widget.h"

InputOutputPanel::InputOutputPanel(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* buttons = new QHBoxLayout;
    auto* addFiles = new QPushButton(tr("添加文件…"), this);
    auto* addFolder = new QPushButton(tr("添加目录…"), this);
    auto* remove = new QPushButton(tr("移除选中"), this);
    auto* clear = new QPushButton(tr("清空列表"), this);
    auto* preview = new QPushButton(tr("波形/频谱预览…"), this);
    preview->setObjectName(QStringLiteral("previewButton"));
    auto* perTrack = new QPushButton(tr("逐轨预设…"), this);
    perTrack->setToolTip(tr("给队列里每个文件单独指定一套预设\n预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板"));
    for (QPushButton* b : {addFiles, addFolder, remove, clear, preview, perTrack})
        buttons->addWidget(b);
    buttons->addStretch(1);
    countLabel_ = new QLabel(this);
    countLabel_->setObjectName(QStringLiteral("fileCount"));
    buttons->addWidget(countLabel_);
    layout->addLayout(buttons);

    fileList_ = new FileListWidget(this);
    fileList_->setToolTip(tr("支持拖入音频文件或文件夹"));
    fileList_->setMinimumHeight(110);
    fileList_->setDropHandler([this](const QStringList& paths) { emit pathsOffered(paths); });
    layout->addWidget(fileList_, 1);
    outputRows_ = buildOutputRows();
    tagRows_ = buildTagRows();
    layout->addWidget(outputRows_);
    layout->addWidget(tagRows_);
    updateCount();

    connect(addFiles, &QPushButton::clicked, this, &InputOutputPanel::chooseInputFiles);
    connect(addFolder, &QPushButton::clicked, this, &InputOutputPanel::chooseInputFolder);
    connect(remove, &QPushButton::clicked, this, &InputOutputPanel::removeRequested);
    connect(clear, &QPushButton::clicked, this, &InputOutputPanel::clearRequested);
    connect(preview, &QPushButton::clicked, this, &InputOutputPanel::previewRequested);
    connect(perTrack, &QPushButton::clicked, this, &InputOutputPanel::perTrackRequested);
}

QWidget* InputOutputPanel::buildOutputRows()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);

    // Two rows: where a single output goes, and where a batch goes.
    outputFile_ = new QLineEdit(box);
    outputFile_->setPlaceholderText(tr("输出 .dsf / .dff 文件"));
    auto* browseFile = new QPushButton(tr("浏览…"), box);
    outputDir_ = new QLineEdit(box);
    outputDir_->setPlaceholderText(tr("留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名"));
    outputDir_->setToolTip(tr("批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算"));
    auto* browseDir = new QPushButton(tr("浏览目录…"), box);
    format_ = new QComboBox(box);
    format_->addItems({QStringLiteral("dsf"), QStringLiteral("dff"), QStringLiteral("wav"),
                       QStringLiteral("w64"), QStringLiteral("flac")});
    format_->setToolTip(tr("输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)"));
    nameTemplate_ = new QLineEdit(box);
    nameTemplate_->setPlaceholderText(QStringLiteral("{input}"));
    nameTemplate_->setToolTip(
        tr("变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段\n"
           "留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录"));
    grid->addWidget(new QLabel(tr("输出文件:"), box), 0, 0);
    grid->addWidget(outputFile_, 0, 1);
    grid->addWidget(browseFile, 0, 2);
    grid->addWidget(new QLabel(tr("输出目录:"), box), 1, 0);
    grid->addWidget(outputDir_, 1, 1);
    grid->addWidget(browseDir, 1, 2);
    grid->addWidget(new QLabel(tr("输出格式:"), box), 0, 3);
    grid->addWidget(format_, 0, 4);
    grid->addWidget(new QLabel(tr("命名模板:"), box), 1, 3);
    grid->addWidget(nameTemplate_, 1, 4);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(4, 1);

    connect(browseFile, &QPushButton::clicked, this, &InputOutputPanel::chooseOutputFile);
    connect(browseDir, &QPushButton::clicked, this, &InputOutputPanel::chooseOutputFolder);
    return box;
}

QWidget* InputOutputPanel::buildTagRows()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto edit = [box] { return new QLineEdit(box); };
    artist_ = edit();
    artist_->setPlaceholderText(tr("标签: DFF→COMT, DSF→ID3"));
    title_ = edit();
    album_ = edit();
    genre_ = edit();
    year_ = edit();
    year_->setMaximumWidth(70);
    track_ = new QSpinBox(box);
    track_->setRange(0, 998);
    track_->setSpecialValueText(QStringLiteral("—"));
    track_->setToolTip(tr("0 = 不写曲目号 (引擎只接受 1..998)"));
    track_->setMaximumWidth(70);
    comment_ = edit();
    comment_->setPlaceholderText(tr("写入标签的说明文字"));
    metadataFromInput_ = new QCheckBox(tr("从输入文件读取标签"), box);

    grid->addWidget(new QLabel(tr("艺术家:"), box), 0, 0);
    grid->addWidget(artist_, 0, 1);
    grid->addWidget(new QLabel(tr("标题:"), box), 0, 2);
    grid->addWidget(title_, 0, 3);
    grid->addWidget(new QLabel(tr("专辑:"), box), 0, 4);
    grid->addWidget(album_, 0, 5);
    grid->addWidget(new QLabel(tr("流派:"), box), 1, 0);
    grid->addWidget(genre_, 1, 1);
    auto* yearTrack = new QHBoxLayout;
    yearTrack->addWidget(new QLabel(tr("年份:"), box));
    yearTrack->addWidget(year_);
    yearTrack->addWidget(new QLabel(tr("曲目号:"), box));
    yearTrack->addWidget(track_);
    yearTrack->addStretch(1);
    grid->addLayout(yearTrack, 1, 2, 1, 2);
    grid->addWidget(new QLabel(tr("备注:"), box), 1, 4);
    grid->addWidget(comment_, 1, 5);
    grid->addWidget(metadataFromInput_, 1, 6);
    for (int c : {1, 3, 5})
        grid->setColumnStretch(c, 1);
    return box;
}

void InputOutputPanel::updateCount()
{
    countLabel_->setText(tr("%1 个文件").arg(fileList_->count()));
}

void InputOutputPanel::collectInto(ConversionSettings& s) const
{
    s.output_path = outputFile_->text().trimmed();
    s.output_dir = outputDir_->text().trimmed();
    s.output_ext = format_->currentText();
    s.name_template = nameTemplate_->text();
    s.artist = artist_->text();
    s.title = title_->text();
    s.album = album_->text();
    s.genre = genre_->text();
    s.year = year_->text();
    s.track_number = track_->value();
    s.comment = comment_->text();
    s.metadata_from_input = metadataFromInput_->isChecked();
}

void InputOutputPanel::setOutputFile(const QString& path)
{
    outputFile_->setText(path);
    outputDir_->clear();
}

void InputOutputPanel::setOutputFolder(const QString& path)
{
    outputDir_->setText(path);
}

void InputOutputPanel::chooseInputFiles()
{
    const QString filter =
        tr("音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)");
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("选择输入文件"), QString(), filter);
    if (!files.isEmpty())
        emit pathsOffered(files);
}

void InputOutputPanel::chooseInputFolder()
{
    const QString dir = QFileDialog::getExistingDirectory(this, tr("选择目录"), QString(), QFileDialog::ShowDirsOnly);
    if (dir.isEmpty())
        return;
    const QStringList found = scanAudioFiles(dir);
    if (found.isEmpty())
        emit emptyFolderChosen();
    else
        emit pathsOffered(found);
}

void InputOutputPanel::chooseOutputFile()
{
    const QString current = outputFile_->text();
    const QString start = current.isEmpty() ? QStringLiteral("output.dff") : current;
    QString filters;
    QString selected;
    if (pcmOutput_ && pcmOutput_()) {
        filters = tr("PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)");
    } else {
        filters = tr("DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)");
        selected = current.contains(QLatin1String(".dsf"), Qt::CaseInsensitive) ? tr("DSD Stream (*.dsf)")
                                                                                : tr("DSDIFF (*.dff)");
    }
    const QString path = QFileDialog::getSaveFileName(this, tr("选择输出文件"), start, filters, &selected);
    if (path.isEmpty())
        return;
    outputFile_->setText(path);
    emit outputFileChosen(path);
}

void InputOutputPanel::chooseOutputFolder()
{
    const QString dir = QFileDialog::getExistingDirectory(this, tr("选择输出目录"), outputDir_->text(),
                                                          QFileDialog::ShowDirsOnly);
    if (!dir.isEmpty())
        outputDir_->setText(dir);
}

QString InputOutputPanel::outputFile() const
{
    return outputFile_->text();
}

QString InputOutputPanel::outputFolder() const
{
    return outputDir_->text();
}

QString InputOutputPanel::outputFormat() const
{
    return format_->currentText();
}

void InputOutputPanel::setOutputFormat(const QString& format)
{
    const int index = format_->findText(format);
    if (index >= 0)
        format_->setCurrentIndex(index);
}

void InputOutputPanel::replaceOutputFile(const QString& path)
{
    outputFile_->setText(path);
}

void InputOutputPanel::applyTags(const ConversionSettings& s)
{
    artist_->setText(s.artist);
    title_->setText(s.title);
    album_->setText(s.album);
    genre_->setText(s.genre);
    year_->setText(s.year);
    track_->setValue(s.track_number);
    comment_->setText(s.comment);
    metadataFromInput_->setChecked(s.metadata_from_input);
}

void InputOutputPanel::setParametersLocked(bool locked)
{
    outputRows_->setEnabled(!locked);
    tagRows_->setEnabled(!locked);
}
