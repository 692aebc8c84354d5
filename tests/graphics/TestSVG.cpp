#include "TestSVG.h"

#include <SVGImage.h>
#include <VNLabel.h>
#include <VNLineEdit.h>
#include <VNPushButton.h>

#include <QComboBox>
#include <QFileDialog>
#include <QMap>
#include <QMessageBox>
#include <QSignalBlocker>

namespace {
const QString defaultImage = QStringLiteral(":/Icons/Blank/Sketches/embed_chevron_help.svg");
const int ignoreData = -1;
const int textData = 0;
} // namespace

TestSVG::TestSVG(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_svgImage(new SVGImage(defaultImage))
    , m_sourceEdited(false)
{
    setupUi(this);
    connect(m_width, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestSVG::onChanged);
    connect(m_height, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestSVG::onChanged);
    load(defaultImage);
}

TestSVG::~TestSVG()
{
    delete m_svgImage;
}

void TestSVG::load(const QString& filePath)
{
    m_sourceEdited = false;
    m_filePath->setText(filePath);
    m_svgImage->loadSVG(filePath);
    if (!m_svgImage->isValid())
        reportInvalidFile();
    const QSize size = m_svgImage->getDefaultSize();
    m_width->setValue(size.width());
    m_height->setValue(size.height());
    rebuildView();
}

void TestSVG::reportInvalidFile()
{
    QMessageBox::information(this, tr("Unable to open file"), QStringLiteral("No valid SVG File"), QMessageBox::Ok,
                             QMessageBox::NoButton);
}

void TestSVG::rebuildView()
{
    m_textItems.clear();
    removeItemRows();
    {
        const QSignalBlocker blocker(m_svgSource);
        m_svgSource->setPlainText(m_svgImage->getSource());
    }
    const QSize size = m_svgImage->getDefaultSize();
    m_defWidth->setText(QStringLiteral("%1 px").arg(size.width()));
    m_defHeight->setText(QStringLiteral("%1 px").arg(size.height()));
    m_textItems = m_svgImage->getTextItems();
    // Hidden while the rows are added: the new widgets are then shown, and the window laid out,
    // once for all rows instead of once per widget.
    const bool visible = replaceList->isVisible();
    if (visible)
        replaceList->hide();
    for (int index = 0; index < m_textItems.size(); ++index)
        addItemRow(index);
    if (visible)
        replaceList->show();
    applyAndRender();
}

// Every item below the header row goes, from the last row up and from the last column to the
// first. The grid keeps its row count after items are removed, so rows are found by their items,
// in one pass over the layout (a lookup per position would pass over all items each time).
void TestSVG::removeItemRows()
{
    QMap<QPair<int, int>, int> itemRows; // (row, column) -> layout index
    for (int index = 0; index < gridLayout->count(); ++index) {
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        gridLayout->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
        if (row >= 1)
            itemRows.insert(qMakePair(row, column), index);
    }
    QList<QLayoutItem*> items;
    for (const int index : qAsConst(itemRows))
        items.prepend(gridLayout->itemAt(index));
    for (QLayoutItem* item : qAsConst(items)) {
        // Taken out of the layout first: a deleted widget would take its item with it.
        QWidget* widget = item->widget();
        gridLayout->removeItem(item);
        delete item;
        delete widget;
    }
}

void TestSVG::addItemRow(int index)
{
    const int row = index + 1;
    gridLayout->addWidget(new VNLabel(QStringLiteral("%1.").arg(index + 1), replaceList), row, 0);

    bool used = false;
    const QString replacement = m_svgImage->getModifiedTextItem(index, &used);

    auto* type = new QComboBox(replaceList);
    // Scripts choose these entries by their words in every locale.
    type->addItem(QStringLiteral("Ignore"), ignoreData);
    type->addItem(QStringLiteral("Text"), textData);
    type->setCurrentIndex(type->findData(used ? textData : ignoreData, Qt::UserRole, Qt::MatchExactly));
    connect(type, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &TestSVG::onChanged);
    gridLayout->addWidget(type, row, 1);

    auto* current = new VNLineEdit(replaceList);
    current->setReadOnly(true);
    current->setAccessibleName(tr("Current text %1").arg(index + 1));
    current->setText(m_textItems.at(index));
    gridLayout->addWidget(current, row, 2);

    auto* replace = new VNLineEdit(replaceList);
    replace->setText(replacement);
    replace->setAccessibleName(tr("Replacement %1").arg(index + 1));
    connect(replace, &QLineEdit::editingFinished, this, &TestSVG::onChanged);
    gridLayout->addWidget(replace, row, 3);
}

// The grid's widgets by row, found in one pass: looking up each position on its own would cost
// a pass over all items per lookup.
QVector<QWidget*> TestSVG::gridColumn(int column) const
{
    QVector<QWidget*> widgets(m_textItems.size() + 1, nullptr);
    for (int index = 0; index < gridLayout->count(); ++index) {
        int row = 0;
        int itemColumn = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        gridLayout->getItemPosition(index, &row, &itemColumn, &rowSpan, &columnSpan);
        if (itemColumn == column && row < widgets.size())
            widgets[row] = gridLayout->itemAt(index)->widget();
    }
    return widgets;
}

void TestSVG::applyAndRender()
{
    const QVector<QWidget*> types = gridColumn(1);
    const QVector<QWidget*> replacements = gridColumn(3);
    for (int index = 0; index < m_textItems.size(); ++index) {
        auto* type = qobject_cast<QComboBox*>(types.at(index + 1));
        auto* replace = qobject_cast<QLineEdit*>(replacements.at(index + 1));
        const int data = type->currentData(Qt::UserRole).toInt();
        m_svgImage->setTextItem(index, replace->text());
        m_svgImage->setTextItemUsed(index, data != ignoreData);
    }
    {
        const QSignalBlocker blocker(m_svgModifiedSource);
        m_svgModifiedSource->setPlainText(m_svgImage->getModifiedSource());
    }
    // Rendered for the screen's pixels, so that a high-density screen shows it sharp.
    const qreal ratio = m_image->devicePixelRatioF();
    QPixmap picture = m_svgImage->renderPixmap(QSize(m_width->value(), m_height->value()) * ratio);
    picture.setDevicePixelRatio(ratio);
    m_image->setPixmap(picture);
    updateBtn->setNeedInputStatus(false);
}

void TestSVG::on_updateBtn_clicked()
{
    if (!m_sourceEdited) {
        applyAndRender();
        return;
    }
    if (m_svgImage->setSVGSource(m_svgSource->toPlainText())) {
        m_filePath->setText(QStringLiteral("User edited source file ..."));
        rebuildView();
    }
}

void TestSVG::on_openFile_clicked()
{
    QString filePath = chooseSvgFile();
    if (filePath.isEmpty())
        filePath = defaultImage;
    load(filePath);
}

QString TestSVG::chooseSvgFile()
{
    // The filter's caption is translated, its pattern never: a translated one would hide the files.
    return QFileDialog::getOpenFileName(this, tr("Open File"), QStringLiteral("/home"),
                                        tr("SVG Image") + QStringLiteral(" (*.svg)"));
}

void TestSVG::on_m_svgSource_textChanged()
{
    m_sourceEdited = true;
    updateBtn->setNeedInputStatus(true);
}

void TestSVG::onChanged()
{
    updateBtn->setNeedInputStatus(true);
}
