#pragma once

#include <QBrush>
#include <QDialog>
#include <QPixmap>
#include <memory>

class QGraphicsPathItem;
class QPainterPath;

namespace Ui {
class BrushDialog;
}

// Edits a brush: a colour with a pattern, or a texture picture, either with a scale and an
// offset. The brush under edit lives only as the background brush of the preview view, which
// every control reads, changes in one aspect and writes back; the caller reads the result
// after an accepted exec(), so Cancel leaves the caller's brush untouched. For an item's
// brush the preview also shows the item's outline, upright and as large as it fits, and
// Auto Adjust fits the texture once over it. Owns its form and the preview's scene.
class BrushDialog : public QDialog
{
    Q_OBJECT

public:
    BrushDialog(QBrush brush, QString textureDirectory, QWidget* parent = nullptr);
    ~BrushDialog() override;

    QBrush brush() const;
    // The outline of the item whose brush this is, in item coordinates with y up.
    void setOutline(const QPainterPath& path);
    // For a brush without outline, such as the view's background: view pixels per unit.
    void setPreviewScale(double scale);

    // Fills a label's background with a brush, in every colour group.
    static void paintPreview(QWidget* label, const QBrush& brush);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

protected slots:
    void onColorPatternGroupBoxToggled(bool on);
    void onTextureGroupBoxToggle(bool on);
    void onColorSelectButtonClicked();
    void onTextureSelectButtonClicked();
    void onPatternChanged(int index);
    void onTransformationChanged();
    void onAutoAdjust();

private:
    void setBrush(const QBrush& brush);
    // Puts the current texture on the brush, keeping its transformation.
    void applyTexture();
    void updateAutoAdjustButton();
    void fitPreview();

    std::unique_ptr<Ui::BrushDialog> ui;
    QPixmap texture;
    QString textureDirectory;
    QGraphicsPathItem* pathItem = nullptr;
};
