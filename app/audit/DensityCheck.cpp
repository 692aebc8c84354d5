#include "DensityCheck.h"

#include "QtCompat.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QStyle>
#include <QTabBar>
#include <QWindow>

namespace {
// Item views show at most this many rows' icons on screen; further rows are not visible.
const int maxRows = 60;

QWindow* windowHandle(QWidget* widget)
{
    return widget->window()->windowHandle();
}

// A picture of one colour (a colour swatch) looks the same however far it is enlarged.
bool isOneColor(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] != first)
                return false;
        }
    }
    return true;
}
} // namespace

DensityCheck::DensityCheck(const QString& windowName, QWidget* window)
    : m_windowName(windowName)
    , m_window(window)
    , m_ratio(window->devicePixelRatioF())
{}

QList<AuditFinding> DensityCheck::run()
{
    if (m_ratio <= 1.0)
        return {};
    checkWidget(m_window);
    for (QWidget* widget : m_window->findChildren<QWidget*>()) {
        if (widget->window() == m_window && widget->isVisibleTo(m_window))
            checkWidget(widget);
    }
    return m_findings;
}

void DensityCheck::checkWidget(QWidget* widget)
{
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        checkIcon(widget, button->icon(), button->iconSize(), QStringLiteral("icon"));
    if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
        const QSize size = tabs->iconSize().isValid()
                               ? tabs->iconSize()
                               : QSize(1, 1) * tabs->style()->pixelMetric(QStyle::PM_TabBarIconSize, nullptr, tabs);
        for (int i = 0; i < tabs->count(); ++i)
            checkIcon(widget, tabs->tabIcon(i), size, QStringLiteral("icon of tab %1").arg(i + 1));
    }
    if (auto* combo = qobject_cast<QComboBox*>(widget))
        checkIcon(widget, combo->itemIcon(combo->currentIndex()), combo->iconSize(), QStringLiteral("item icon"));
    if (auto* label = qobject_cast<QLabel*>(widget)) {
        const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
        if (!pixmap.isNull())
            checkPixmap(widget, pixmap,
                        label->hasScaledContents() ? label->contentsRect().size()
                                                   : pixmap.size() / pixmap.devicePixelRatioF(),
                        QStringLiteral("picture"));
    }
    if (qobject_cast<QAbstractItemView*>(widget))
        checkItemIcons(widget);
}

void DensityCheck::checkIcon(QWidget* widget, const QIcon& icon, const QSize& size, const QString& what)
{
    if (icon.isNull() || size.isEmpty())
        return;
    // What Qt draws: the icon's pixmap for this window at the shown size.
    const QPixmap pixmap = QtCompat::pixmap(icon, windowHandle(widget), size);
    if (pixmap.isNull())
        return;
    const QSize shown = pixmap.size() / pixmap.devicePixelRatioF();
    checkPixmap(widget, pixmap, shown, what);
}

void DensityCheck::checkPixmap(QWidget* widget, const QPixmap& pixmap, const QSize& shownSize, const QString& what)
{
    if (shownSize.isEmpty())
        return;
    const double pixelsPerPixel =
        qMin(double(pixmap.width()) / shownSize.width(), double(pixmap.height()) / shownSize.height());
    if (pixelsPerPixel + 0.01 < m_ratio && !isOneColor(pixmap))
        report(widget, what, pixelsPerPixel, widget->grab().toImage());
}

void DensityCheck::checkItemIcons(QWidget* widget)
{
    auto* view = static_cast<QAbstractItemView*>(widget);
    const QAbstractItemModel* model = view->model();
    if (!model)
        return;
    const QSize size = view->iconSize().isValid()
                           ? view->iconSize()
                           : QSize(1, 1) * view->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, view);
    const int rows = qMin(model->rowCount(), maxRows);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            if (!view->visualRect(index).intersects(view->viewport()->rect()))
                continue;
            const QVariant decoration = index.data(Qt::DecorationRole);
            const QString what = QStringLiteral("icon of item %1, %2").arg(row + 1).arg(column + 1);
            if (decoration.canConvert<QIcon>() && decoration.userType() == qMetaTypeId<QIcon>())
                checkIcon(widget, decoration.value<QIcon>(), size, what);
            else if (decoration.userType() == qMetaTypeId<QPixmap>())
                checkPixmap(widget, decoration.value<QPixmap>(),
                            decoration.value<QPixmap>().size() / decoration.value<QPixmap>().devicePixelRatioF(), what);
        }
    }
}

void DensityCheck::report(QWidget* widget, const QString& what, double pixelsPerPixel, const QImage& picture)
{
    AuditFinding finding;
    finding.window = m_windowName;
    finding.objectName = AuditFinding::nameOf(widget);
    finding.check = AuditFinding::densityCheck;
    finding.rule = QStringLiteral("upscaled");
    finding.message = QStringLiteral("The %1 has %2 device pixels per pixel on a screen of %3: it is drawn "
                                     "enlarged and blurred.")
                          .arg(what)
                          .arg(pixelsPerPixel)
                          .arg(m_ratio);
    finding.measured = QJsonObject{{QStringLiteral("what"), what},
                                   {QStringLiteral("class"), QString::fromLatin1(widget->metaObject()->className())},
                                   {QStringLiteral("pixelsPerPixel"), pixelsPerPixel}};
    finding.expected = QJsonObject{{QStringLiteral("pixelsPerPixel"), m_ratio}};
    finding.crop = picture;
    m_findings << finding;
}
