#include "TestAlignment.h"

#include <VNButton.h>
#include <VNDoubleSpinBox.h>
#include <VNLabel.h>
#include <VNLineEdit.h>
#include <VNMenu.h>
#include <VNPushButton.h>

#include <QEvent>
#include <QPainter>

namespace {
const QColor rowGuideColor(0, 170, 200);
const QColor columnGuideColor(220, 0, 160);
} // namespace

TestAlignment::TestAlignment(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_guideOverlay(nullptr)
{
    ui.setupUi(this);
    createMenus();

    for (VNDoubleSpinBox* field :
         {ui.m_spinBoxNormal, ui.m_spinBoxNeedInput, ui.m_spinBoxReadOnly, ui.m_spinBoxDisabled, ui.m_baselineSpinBox})
        field->setValueUnit(QStringLiteral("mm"));
    ui.m_lineEditNeedInput->setNeedInputStatus(true);
    ui.m_spinBoxNeedInput->setNeedInputStatus(true);
    ui.m_pushButtonNeedInput->setNeedInputStatus(true);
    ui.m_baselineUnitLabel->setUnitValue(42.0, QStringLiteral("mm"));

    // The overlay lies over the grid, lets every mouse event through and paints the guides.
    m_guideOverlay = new QWidget(ui.m_alignmentArea);
    m_guideOverlay->setObjectName(QStringLiteral("m_guideOverlay"));
    m_guideOverlay->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_guideOverlay->installEventFilter(this);
    ui.m_alignmentArea->installEventFilter(this);
    m_guideOverlay->raise();
    connect(ui.m_showGuides, &QCheckBox::toggled, m_guideOverlay, &QWidget::setVisible);
}

TestAlignment::~TestAlignment() = default;

void TestAlignment::createMenus()
{
    auto* fileMenu = new VNMenu(ui.m_fileMenuButton);
    fileMenu->setObjectName(QStringLiteral("m_fileMenu"));
    fileMenu->addAction(tr("Open..."));
    fileMenu->addAction(tr("Save"));
    fileMenu->addSeparator();
    fileMenu->addAction(tr("Close"))->setEnabled(false);
    ui.m_fileMenuButton->setMenu(fileMenu);

    auto* editMenu = new VNMenu(ui.m_editMenuButton);
    editMenu->setObjectName(QStringLiteral("m_editMenu"));
    for (const QString& text : {tr("Undo"), tr("Redo"), tr("Cut"), tr("Copy"), tr("Paste")})
        editMenu->addAction(text);
    ui.m_editMenuButton->setMenu(editMenu);
    ui.m_editMenuButton->setPopupMode(QToolButton::InstantPopup);

    auto* viewMenu = new VNMenu(ui.m_viewMenuButton);
    viewMenu->setObjectName(QStringLiteral("m_viewMenu"));
    for (const QString& text : {tr("Grid"), tr("Guides"), tr("Rulers")}) {
        QAction* action = viewMenu->addAction(text);
        action->setCheckable(true);
        action->setChecked(text == tr("Guides"));
    }
    ui.m_viewMenuButton->setMenu(viewMenu);
    ui.m_viewMenuButton->setPopupMode(QToolButton::MenuButtonPopup);
}

bool TestAlignment::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui.m_alignmentArea && event->type() == QEvent::Resize)
        m_guideOverlay->setGeometry(ui.m_alignmentArea->rect());
    if (watched == m_guideOverlay && event->type() == QEvent::Paint) {
        paintGuides();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void TestAlignment::paintGuides()
{
    QPainter painter(m_guideOverlay);
    const int width = m_guideOverlay->width();
    const int height = m_guideOverlay->height();
    // Rows: the top and bottom pixel rows of each line edit, across the whole grid.
    painter.setPen(QPen(rowGuideColor, 0));
    for (const QLineEdit* edit :
         {ui.m_lineEditNormal, ui.m_lineEditNeedInput, ui.m_lineEditReadOnly, ui.m_lineEditDisabled}) {
        const QRect frame = edit->geometry();
        painter.drawLine(0, frame.top(), width, frame.top());
        painter.drawLine(0, frame.bottom(), width, frame.bottom());
    }
    // Columns: the left and right pixel columns of the first row's controls, down the whole grid.
    painter.setPen(QPen(columnGuideColor, 0));
    for (const QWidget* control :
         {static_cast<QWidget*>(ui.m_labelNormal), static_cast<QWidget*>(ui.m_lineEditNormal),
          static_cast<QWidget*>(ui.m_spinBoxNormal), static_cast<QWidget*>(ui.m_pushButtonNormal),
          static_cast<QWidget*>(ui.m_fileMenuButton)}) {
        const QRect frame = control->geometry();
        painter.drawLine(frame.left(), 0, frame.left(), height);
        painter.drawLine(frame.right(), 0, frame.right(), height);
    }
}
