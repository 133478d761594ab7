#pragma once

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>
#include <memory>

class QListWidgetItem;

namespace Ui {
class QuickLoadWidget;
}

// The content of the "Quick Load" dock: the scene archives of one directory with their
// thumbnails, newest first; a double-click loads one. A file system watcher keeps the list up
// to date, so saved and downloaded scenes show up by themselves. A burst of its events reloads
// at its first event and once more 250 ms later, so that the burst's last files are not
// missed. The directory and the icon size are kept in the settings.
class QuickLoadWidget : public QWidget
{
    Q_OBJECT

public:
    QuickLoadWidget(QString directory, QWidget* parent = nullptr);
    ~QuickLoadWidget() override;

    // The directory shown, where downloads go too.
    QString directory() const { return currentDirectory; }

protected:
    void changeEvent(QEvent* event) override;

protected slots:
    void onItemDoubleClicked(QListWidgetItem* pItem);
    void onBrowseButtonClicked();
    void onIconSizeChanged(int index);
    void onDirectoryChanged();
    void onFileChanged();

private:
    void fill(const QString& directory);
    void refresh();
    void reload();

    std::unique_ptr<Ui::QuickLoadWidget> ui;
    QString currentDirectory;
    QFileSystemWatcher watcher;
    // Since the last refresh request; invalid before the first.
    QElapsedTimer lastRequest;
    // The one reload that follows a burst.
    QTimer trailingReload;
};
