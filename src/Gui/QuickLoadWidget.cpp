#include "Gui/QuickLoadWidget.h"

#include "Application/Application.h"
#include "Application/Settings.h"
#include "Files/SceneFile.h"
#include "ui_QuickLoadWidget.h"

#include <QDir>
#include <QFileDialog>

namespace {
const qint64 refreshInterval = 250; // milliseconds
} // namespace

QuickLoadWidget::QuickLoadWidget(QString directory, QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::QuickLoadWidget)
{
    ui->setupUi(this);
    const QSize storedSize = Settings::instance()->quickLoadIconSize;
    ui->listWidget->setIconSize(storedSize);
    // From the thumbnail's size down by quarters while the width is at least 40 pixels.
    const QSize quarter(qRound(ThumbnailSize.width() / 4.0), qRound(ThumbnailSize.height() / 4.0));
    for (QSize size = ThumbnailSize; size.width() >= 40; size -= quarter) {
        ui->iconSizeComboBox->addItem(
            QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()), size);
    }
    ui->iconSizeComboBox->setCurrentIndex(ui->iconSizeComboBox->findData(storedSize));
    connect(ui->iconSizeComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &QuickLoadWidget::onIconSizeChanged);
    connect(ui->listWidget, &QListWidget::itemDoubleClicked, this,
            &QuickLoadWidget::onItemDoubleClicked);
    connect(ui->browseButton, &QPushButton::clicked, this, &QuickLoadWidget::onBrowseButtonClicked);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this,
            &QuickLoadWidget::onDirectoryChanged);
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, &QuickLoadWidget::onFileChanged);
    trailingReload.setSingleShot(true);
    trailingReload.setInterval(int(refreshInterval));
    connect(&trailingReload, &QTimer::timeout, this, &QuickLoadWidget::reload);
    fill(directory);
}

QuickLoadWidget::~QuickLoadWidget() = default;

void QuickLoadWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

void QuickLoadWidget::fill(const QString& directory)
{
    currentDirectory = directory;
    const QStringList watched = watcher.directories() + watcher.files();
    if (!watched.isEmpty())
        watcher.removePaths(watched);
    if (QFileInfo(directory).isDir())
        watcher.addPath(directory);
    const QFileInfoList files = QDir(directory).entryInfoList(
        {QStringLiteral("*.%1").arg(SceneFile::extension)}, QDir::Files, QDir::Time);
    for (const QFileInfo& file : files) {
        watcher.addPath(file.absoluteFilePath());
        const QImage thumbnail = SceneFile(file.absoluteFilePath()).thumbnail();
        auto* item = new QListWidgetItem(QIcon(QPixmap::fromImage(thumbnail)), file.baseName());
        item->setData(Qt::UserRole, file.absoluteFilePath());
        ui->listWidget->addItem(item);
    }
}

void QuickLoadWidget::refresh()
{
    // A save or a download touches the directory and its files in many steps: the first
    // event of a burst reloads at once, the rest of it leads to one more reload after it.
    const bool first = !lastRequest.isValid();
    const qint64 since = first ? 0 : lastRequest.elapsed();
    lastRequest.start();
    if (!first && since <= refreshInterval) {
        if (!trailingReload.isActive())
            trailingReload.start();
        return;
    }
    reload();
}

void QuickLoadWidget::reload()
{
    ui->listWidget->clear();
    fill(currentDirectory);
}

void QuickLoadWidget::onItemDoubleClicked(QListWidgetItem* pItem)
{
    Application::instance()->load(pItem->data(Qt::UserRole).toString());
}

void QuickLoadWidget::onBrowseButtonClicked()
{
    const QString chosen = QFileDialog::getExistingDirectory(
        this, tr("Open Directory"), currentDirectory, QFileDialog::ShowDirsOnly);
    if (chosen.isEmpty())
        return;
    currentDirectory = chosen;
    Settings::instance()->setQuickLoadDirectory(chosen);
    refresh();
}

void QuickLoadWidget::onIconSizeChanged(int index)
{
    const QSize size = ui->iconSizeComboBox->itemData(index).toSize();
    Settings::instance()->setQuickLoadIconSize(size);
    ui->listWidget->setIconSize(size);
}

void QuickLoadWidget::onDirectoryChanged()
{
    refresh();
}

void QuickLoadWidget::onFileChanged()
{
    refresh();
}
