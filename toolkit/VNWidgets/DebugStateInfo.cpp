#include "DebugStateInfo.h"

#include "VNWidgetInterface.h"
#include "VNWidgetStatus.h"

#include <algorithm>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
const int widgetPointerRole = Qt::UserRole + 1;
const int refreshIntervalMs = 250;
const QSize swatchSize(16, 16);
// Application-wide, because the keyboard focus is in the window being inspected.
const QKeySequence freezeKey(Qt::Key_F8);
const QKeySequence copyImageKey(Qt::CTRL | Qt::SHIFT | Qt::Key_C);

QString yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

QString rectText(const QRect& rect)
{
    return QStringLiteral("%1, %2  %3 x %4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

QString widgetTitle(const QWidget* widget)
{
    const QString name = widget->objectName();
    return name.isEmpty()
               ? QString::fromLatin1(widget->metaObject()->className())
               : QStringLiteral("%1 \"%2\"").arg(QString::fromLatin1(widget->metaObject()->className()), name);
}

QString statusText(const QWidget* widget)
{
    VNWidgetStatus::StatusFlags status = VNWidgetStatus::statusFromProperty(widget);
    if (auto* carrier = dynamic_cast<const VNWidgetInterface*>(widget))
        status = carrier->getWidgetStatus();
    return QStringLiteral("%1 (0x%2)").arg(VNWidgetStatus::debugStatusFlag(status)).arg(int(status), 0, 16);
}
} // namespace

DebugStateInfo::DebugStateInfo(QWidget* parent)
    : QWidget(parent, Qt::Window)
{
    setObjectName(QStringLiteral("DebugStateInfo"));
    setWindowTitle(tr("Widget State"));
    resize(720, 520);

    m_follow = new QCheckBox(tr("Follow mouse"), this);
    m_follow->setObjectName(QStringLiteral("followMouseCheckBox"));
    m_follow->setChecked(true);
    m_follow->setToolTip(tr("%1 freezes or resumes following the mouse in every window.")
                             .arg(freezeKey.toString(QKeySequence::NativeText)));
    auto* rebuild = new QPushButton(tr("Refresh Windows"), this);
    rebuild->setObjectName(QStringLiteral("refreshWindowsButton"));
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("inspectedLabel"));
    m_title->setTextInteractionFlags(Qt::TextSelectableByMouse);

    m_pixelSwatch = new QLabel(this);
    m_pixelSwatch->setObjectName(QStringLiteral("pixelSwatch"));
    m_pixelSwatch->setFixedSize(swatchSize);
    m_pixelText = new QLabel(this);
    m_pixelText->setObjectName(QStringLiteral("pixelColorLabel"));
    m_pixelText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* copyImage = new QPushButton(tr("Copy Image"), this);
    copyImage->setObjectName(QStringLiteral("copyImageButton"));
    copyImage->setToolTip(tr("Copies the image of the inspected widget to the clipboard (%1).")
                              .arg(copyImageKey.toString(QKeySequence::NativeText)));
    m_copyStatus = new QLabel(this);
    m_copyStatus->setObjectName(QStringLiteral("copyStatusLabel"));

    m_windowTree = new QTreeWidget(this);
    m_windowTree->setObjectName(QStringLiteral("windowTree"));
    m_windowTree->setHeaderLabel(tr("Windows"));
    m_windowTree->setAccessibleName(tr("Windows"));
    m_stateView = new QTreeWidget(this);
    m_stateView->setObjectName(QStringLiteral("stateView"));
    m_stateView->setAccessibleName(tr("State"));
    m_stateView->setHeaderLabels({tr("Property"), tr("Value")});
    m_stateView->setRootIsDecorated(false);
    m_stateView->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);

    auto* splitter = new QSplitter(this);
    splitter->addWidget(m_windowTree);
    splitter->addWidget(m_stateView);
    splitter->setStretchFactor(1, 1);

    auto* top = new QHBoxLayout;
    top->addWidget(m_follow);
    top->addWidget(m_title, 1);
    top->addWidget(rebuild);
    auto* pixelRow = new QHBoxLayout;
    pixelRow->addWidget(new QLabel(tr("Pixel under mouse:"), this));
    pixelRow->addWidget(m_pixelSwatch);
    pixelRow->addWidget(m_pixelText, 1);
    pixelRow->addWidget(m_copyStatus);
    pixelRow->addWidget(copyImage);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(pixelRow);
    layout->addWidget(splitter, 1);

    connect(rebuild, &QPushButton::clicked, this, &DebugStateInfo::rebuildWindowTree);
    connect(m_windowTree, &QTreeWidget::itemClicked, this, &DebugStateInfo::onTreeItemActivated);
    connect(m_windowTree, &QTreeWidget::itemActivated, this, &DebugStateInfo::onTreeItemActivated);

    connect(copyImage, &QPushButton::clicked, this, &DebugStateInfo::copyInspectedImage);
    auto* freeze = new QShortcut(freezeKey, this, nullptr, nullptr, Qt::ApplicationShortcut);
    connect(freeze, &QShortcut::activated, this, &DebugStateInfo::toggleFollowingMouse);
    auto* copy = new QShortcut(copyImageKey, this, nullptr, nullptr, Qt::ApplicationShortcut);
    connect(copy, &QShortcut::activated, this, &DebugStateInfo::copyInspectedImage);

    m_timer = new QTimer(this);
    m_timer->setInterval(refreshIntervalMs);
    connect(m_timer, &QTimer::timeout, this, &DebugStateInfo::poll);
    m_timer->start();
    refresh();
    showPixel();
    QTimer::singleShot(0, this, &DebugStateInfo::rebuildWindowTree);
}

DebugStateInfo::~DebugStateInfo() = default;

bool DebugStateInfo::isFollowingMouse() const
{
    return m_follow->isChecked();
}

void DebugStateInfo::setFollowingMouse(bool follow)
{
    m_follow->setChecked(follow);
}

void DebugStateInfo::toggleFollowingMouse()
{
    setFollowingMouse(!isFollowingMouse());
}

void DebugStateInfo::poll()
{
    if (isFollowingMouse())
        followMouse();
    refresh();
}

QString DebugStateInfo::colorText(const QColor& color)
{
    if (!color.isValid())
        return QStringLiteral("-");
    return QStringLiteral("%1  RGB(%2, %3, %4)")
        .arg(color.name())
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue());
}

void DebugStateInfo::samplePixel(const QPoint& globalPosition)
{
    QScreen* screen = QGuiApplication::screenAt(globalPosition);
    if (!screen) {
        m_pixelColor = QColor();
        return;
    }
    // The screen's pixel rather than a widget's rendering: what the user sees, overlapping windows
    // and floating children included.
    const QPoint onScreen = globalPosition - screen->geometry().topLeft();
    const QImage pixel = screen->grabWindow(0, onScreen.x(), onScreen.y(), 1, 1).toImage();
    m_pixelColor = pixel.isNull() ? QColor() : pixel.pixelColor(0, 0);
}

void DebugStateInfo::showPixel()
{
    m_pixelText->setText(colorText(m_pixelColor));
    QPixmap swatch(swatchSize);
    swatch.fill(m_pixelColor.isValid() ? m_pixelColor : QColor(Qt::transparent));
    m_pixelSwatch->setPixmap(swatch);
}

void DebugStateInfo::copyInspectedImage()
{
    if (!m_inspected) {
        m_copyStatus->setText(tr("No widget to copy"));
        return;
    }
    const QImage image = m_inspected->grab().toImage();
    QApplication::clipboard()->setImage(image);
    m_copyStatus->setText(tr("Copied %1 x %2").arg(image.width()).arg(image.height()));
}

void DebugStateInfo::inspect(QWidget* widget)
{
    m_inspected = widget;
    refresh();
}

bool DebugStateInfo::belongsToInspector(const QWidget* widget) const
{
    return widget && (widget == this || isAncestorOf(widget));
}

void DebugStateInfo::followMouse()
{
    const QPoint position = QCursor::pos();
    QWidget* underMouse = QApplication::widgetAt(position);
    if (!belongsToInspector(underMouse)) {
        samplePixel(position);
        showPixel();
    }
    // Moving the mouse over the inspector itself keeps the last target, so it can be read.
    if (underMouse && !belongsToInspector(underMouse) && underMouse != m_inspected)
        inspect(underMouse);
}

QList<QPair<QString, QString>> DebugStateInfo::describe(const QWidget* widget)
{
    QList<QPair<QString, QString>> rows;
    if (!widget)
        return rows;
    rows << qMakePair(tr("Class"), QString::fromLatin1(widget->metaObject()->className()));
    rows << qMakePair(tr("Object name"), widget->objectName());
    rows << qMakePair(tr("Window"), widgetTitle(widget->window()));
    rows << qMakePair(tr("Geometry"), rectText(widget->geometry()));
    rows << qMakePair(tr("Global position"), rectText(QRect(widget->mapToGlobal(QPoint()), widget->size())));
    rows << qMakePair(tr("Enabled"), yesNo(widget->isEnabled()));
    rows << qMakePair(tr("Visible"), yesNo(widget->isVisible()));
    rows << qMakePair(tr("Hover"), yesNo(widget->underMouse()));
    rows << qMakePair(tr("Focus"), yesNo(widget->hasFocus()));
    rows << qMakePair(tr("Status"), statusText(widget));
    const QList<QByteArray> names = widget->dynamicPropertyNames();
    for (const QByteArray& name : names) {
        if (name.startsWith("_q_"))
            continue;
        rows << qMakePair(QString::fromLatin1(name), widget->property(name).toString());
    }
    return rows;
}

void DebugStateInfo::refresh()
{
    const auto rows = describe(m_inspected);
    m_title->setText(m_inspected ? widgetTitle(m_inspected) : tr("No widget"));
    const bool sameShape = m_stateView->topLevelItemCount() == rows.size();
    if (!sameShape)
        m_stateView->clear();
    for (int i = 0; i < rows.size(); ++i) {
        QTreeWidgetItem* item = sameShape ? m_stateView->topLevelItem(i) : new QTreeWidgetItem(m_stateView);
        item->setText(0, rows.at(i).first);
        item->setText(1, rows.at(i).second);
    }
}

void DebugStateInfo::rebuildWindowTree()
{
    m_windowTree->clear();
    // Qt lists the windows in no particular order; sorted, the tree looks the same every time.
    QWidgetList windows = QApplication::topLevelWidgets();
    std::stable_sort(windows.begin(), windows.end(),
                     [](const QWidget* left, const QWidget* right) { return widgetTitle(left) < widgetTitle(right); });
    for (QWidget* window : windows) {
        if (window == this || !window->isVisible())
            continue;
        auto* item = new QTreeWidgetItem(m_windowTree);
        addWidgetItems(item, window);
    }
}

void DebugStateInfo::addWidgetItems(QTreeWidgetItem* item, QWidget* widget)
{
    item->setText(0, widgetTitle(widget));
    item->setData(0, widgetPointerRole, QVariant::fromValue(QPointer<QWidget>(widget)));
    const QList<QWidget*> children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        if (!child->isWindow())
            addWidgetItems(new QTreeWidgetItem(item), child);
    }
}

void DebugStateInfo::onTreeItemActivated(QTreeWidgetItem* item)
{
    const auto widget = item->data(0, widgetPointerRole).value<QPointer<QWidget>>();
    if (!widget)
        return;
    setFollowingMouse(false);
    inspect(widget);
}
