#pragma once

#include "ui_TestSVG.h"

#include <QDialog>
#include <QStringList>
#include <QVector>

class SVGImage;

// The toolkit's SVGImage: the source of an SVG file, its text items with a choice per item between
// keeping and replacing the text, the modified source and the image rendered at a chosen size.
// The source can also be edited by hand; Update then renders the edited text.
class TestSVG : public QDialog, private Ui::TestSVG
{
    Q_OBJECT

public:
    explicit TestSVG(QWidget* parent);
    ~TestSVG() override;

private slots:
    void on_updateBtn_clicked();
    void on_openFile_clicked();
    void on_m_svgSource_textChanged();
    void onChanged();

protected:
    // The file dialog and the message box, replaceable so that tests never wait for a user.
    virtual QString chooseSvgFile();
    virtual void reportInvalidFile();

private:
    void load(const QString& filePath);
    void rebuildView();
    void removeItemRows();
    void addItemRow(int index);
    void applyAndRender();
    QVector<QWidget*> gridColumn(int column) const;

    QStringList m_textItems;
    SVGImage* m_svgImage;
    bool m_sourceEdited;
};
