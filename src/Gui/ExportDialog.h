#pragma once

#include <QDialog>
#include <QRectF>
#include <memory>

class QPaintDevice;

namespace Ui {
class ExportDialog;
}

// Writes one still picture of the whole scene: an image in any format Qt can write, or a
// vector picture as SVG or PDF for worksheets and papers. The picture shows the items'
// bounding rectangle on white at twenty pixels to the metre to start with; width and height
// stay locked to the scene's proportions. An existing file is never overwritten.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ExportDialog(QWidget* parent = nullptr);
    ~ExportDialog() override;

    // The first of "base.extension", "base_1.extension", "base_2.extension" and so on that
    // does not exist in the directory; empty if the directory does not exist.
    static QString freeFileName(const QString& directory, const QString& base,
                                const QString& extension);

public slots:
    void accept() override;

protected:
    void changeEvent(QEvent* event) override;

protected slots:
    void onGroupBoxToggled();
    void onImageDirectoryBrowseButtonClicked();
    void onImageWidthChanged(int width);
    void onImageHeightChanged(int height);
    void onImageFormatChanged();

private:
    // Writes the picture to the file in the chosen format; false if it could not.
    bool save(const QString& target) const;
    // Paints the white page and the scene over it, y up, on a device of the chosen size.
    void paint(QPaintDevice* device) const;
    bool isVectorFormat() const;
    void retranslate();

    std::unique_ptr<Ui::ExportDialog> ui;
    // The scene's area in metres, and its width divided by its height; 0 while the scene has
    // no area, and the size is then free.
    QRectF sceneArea;
    double aspectRatio = 0.0;
};
