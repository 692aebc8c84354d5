#include <VNAnimatedTabBar.h>
#include <VNBarChart.h>
#include <VNComboBox.h>
#include <VNCustomHeaderView.h>
#include <VNDoubleSpinBox.h>
#include <VNItemDataRoles.h>
#include <VNItemDelegate.h>
#include <VNMultiProgressBar.h>
#include <VNProgressiveDisclosureBtn.h>
#include <VNSlider.h>
#include <VNStatusPalette.h>
#include <VNStatusStyleSheet_p.h>
#include <VNStyleSheet.h>
#include <VNTreeView.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPainter>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTest>

#include <functional>
#include <memory>

namespace {
using Flags = VNWidgetStatus::StatusFlags;
using Look = VNStatusPalette::Look;
using SigmaLook = VNStatusPalette::SigmaLook;

// One status word for each part of the palette, and the entry it must be painted in.
struct Word
{
    const char* name;
    int flags;
    Look look;
    SigmaLook sigma;
};

const Word words[] = {
    {"needInput", VNWidgetStatus::needInput, Look::needInput, SigmaLook::none},
    {"userEdit", VNWidgetStatus::userEdit, Look::userEdit, SigmaLook::none},
    {"different", VNWidgetStatus::different, Look::different, SigmaLook::none},
    {"standardDefined", VNWidgetStatus::standardEnabled | VNWidgetStatus::standardDefined, Look::standardDefined,
     SigmaLook::none},
    {"standardChanged", VNWidgetStatus::standardChanged, Look::standardChanged, SigmaLook::none},
    {"standardLocked", VNWidgetStatus::standardLocked, Look::standardLocked, SigmaLook::none},
    {"standardChangedLocked", VNWidgetStatus::standardChangedLocked, Look::standardChangedLocked, SigmaLook::none},
    {"standardDefault", VNWidgetStatus::standardDefined | VNWidgetStatus::standardDefault, Look::standardDefault,
     SigmaLook::none},
    {"standardDefaultChanged", VNWidgetStatus::standardDefaultChanged, Look::standardDefaultChanged, SigmaLook::none},
    {"sigma available", VNWidgetStatus::sigmaAvailable, Look::undef, SigmaLook::available},
    {"sigma active", VNWidgetStatus::sigmaAvailable | VNWidgetStatus::sigmaOn, Look::undef, SigmaLook::active},
    {"sigma invalid", VNWidgetStatus::sigmaAvailable | VNWidgetStatus::sigmaOn | VNWidgetStatus::sigmaError,
     Look::undef, SigmaLook::invalid},
    {"sigma standard changed", VNWidgetStatus::sigmaAvailable | VNWidgetStatus::sigmaStandardChanged, Look::undef,
     SigmaLook::standardChanged},
    {"compare differs", VNWidgetStatus::compareDifferent, Look::undef, SigmaLook::none},
};

// A painted status and where the family shows each part of it; a part it does not show has an
// empty rectangle.
struct Painted
{
    QImage image;
    QRect frame;   // the main look's frame colour
    QRect fill;    // the main look's fill
    QRect sigma;   // the sigma bar or marker
    QRect compare; // the compare-differs mark
    QRect mark;    // the one colour of a word, where there is room for one only
};

QRect leftBar(const QImage& image, int width)
{
    return QRect(0, image.height() / 2 - 2, width, 4);
}

QRect rightEdge(const QImage& image)
{
    return QRect(image.width() - 3, image.height() / 2 - 2, 3, 4);
}

QRect topEdge(const QImage& image)
{
    return QRect(0, 0, image.width(), 3);
}

enum class Frame
{
    right, // a field's or a framed widget's border; the left one gives way to the sigma bar
    leftBar
};

// Widgets that carry the word as dynamic properties (styled by the style sheet or painted) show
// it on their edges: the frame, the sigma bar on the left, the compare frame on top; some fill.
Painted onEdges(QWidget* widget, Flags flags, Frame frame, bool filled)
{
    std::unique_ptr<QWidget> owner(widget);
    VNWidgetStatus::setStatusProperty(widget, flags);
    Painted painted{widget->grab().toImage(), {}, {}, {}, {}, {}};
    const QImage& image = painted.image;
    painted.frame = frame == Frame::right ? rightEdge(image) : leftBar(image, 3);
    if (filled)
        painted.fill = QRect(image.width() - 5, image.height() / 2, 1, 1);
    painted.sigma = leftBar(image, 5);
    painted.compare = topEdge(image);
    return painted;
}

template<typename W>
W* sized(W* widget, int width, int height)
{
    widget->resize(width, height);
    return widget;
}

VNProgressiveDisclosureBtn* disclosureHead()
{
    auto* head = sized(new VNProgressiveDisclosureBtn, 160, 24);
    head->setText(QStringLiteral("Material"));
    return head;
}

Painted animatedTab(Flags flags)
{
    VNAnimatedTabBar bar;
    bar.addTab(QStringLiteral("A"));
    bar.addTab(QStringLiteral("B"));
    bar.resize(300, 30);
    bar.setWidgetStatus(1, flags);
    const QRect tab = bar.tabRect(1).adjusted(0, 1, -1, -1);
    Painted painted{bar.grab().toImage(), {}, {}, {}, {}, {}};
    painted.frame = QRect(tab.right(), tab.center().y() - 2, 1, 4);
    painted.fill = QRect(tab.left() + 4, tab.top() + 5, 1, 1);
    painted.sigma = QRect(tab.left() + 1, tab.center().y() - 2, 3, 4);
    painted.compare = QRect(tab.left(), tab.top(), tab.width(), 3);
    return painted;
}

Painted headerSection(Flags flags)
{
    QStandardItemModel model(1, 2);
    model.setHeaderData(0, Qt::Horizontal, int(flags), VNItemDataRoles::StatusRole);
    VNCustomHeaderView header(Qt::Horizontal, QSize(0, 0));
    header.setModel(&model);
    header.resize(200, 30);
    // The whole header shows compare-differs as a frame, each section its status as a band.
    header.setCompareDifferent(flags.testFlag(VNWidgetStatus::compareDifferent));
    Painted painted{header.viewport()->grab().toImage(), {}, {}, {}, {}, {}};
    painted.mark = QRect(4, header.height() - 3, header.sectionSize(0) - 8, 2);
    painted.compare = topEdge(painted.image);
    return painted;
}

Painted itemCell(Flags flags)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), int(flags), VNItemDataRoles::StatusRole);
    VNTreeView view;
    view.setModel(&model);
    view.setItemDelegate(new VNItemDelegate(&view));
    view.resize(200, 60);
    const QRect cell = view.visualRect(model.index(0, 0));
    Painted painted{view.viewport()->grab().toImage(), {}, {}, {}, {}, {}};
    painted.frame = QRect(cell.left(), cell.center().y(), 3, 1);
    painted.fill = QRect(cell.center().x(), cell.bottom(), 1, 1);
    painted.sigma = VNItemDelegate::sigmaRect(cell);
    painted.compare = QRect(cell.right() - 4, cell.top() + 1, 4, 4); // the corner marks
    return painted;
}

Painted popupItem(Flags flags)
{
    VNComboBox combo;
    combo.addItems({QStringLiteral("Steel"), QStringLiteral("Aluminium")});
    combo.setItemWidgetStatus(1, flags);
    combo.resize(200, 30);
    combo.show();
    combo.showPopup();
    QAbstractItemView* view = combo.view();
    const QRect item = view->visualRect(view->model()->index(1, 0));
    Painted painted{view->viewport()->grab().toImage(), {}, {}, {}, {}, {}};
    painted.mark = QRect(item.left() + 1, item.center().y() - 1, 4, 2);
    combo.hidePopup();
    return painted;
}

// The value field shows sigma as a marker in front of the value, filled while sigma is on.
Painted sigmaMarker(Flags flags)
{
    VNDoubleSpinBox field;
    field.resize(160, 28);
    field.setWidgetStatus(flags);
    Painted painted{field.grab().toImage(), {}, {}, {}, {}, {}};
    if (flags.testFlag(VNWidgetStatus::sigmaOn))
        painted.sigma = QRect(field.findChild<QLineEdit*>()->geometry().topLeft() + QPoint(3, 4), QSize(1, 1));
    return painted;
}

VNBarChart* barChart()
{
    auto* chart = new VNBarChart;
    chart->setHeaderLabel(QStringLiteral("Forces"));
    chart->addBar(QStringLiteral("Bar 1"), 42.0, QColor(Qt::darkGreen));
    return sized(chart, 200, 80);
}

VNMultiProgressBar* progressBar()
{
    auto* bar = new VNMultiProgressBar;
    bar->setProgressItems({QStringLiteral("Load"), QStringLiteral("Mesh")});
    return sized(bar, 200, 40);
}

using Paint = std::function<Painted(Flags)>;

const QList<QPair<const char*, Paint>> families = {
    {"line edit",
     [](Flags f) { return onEdges(sized(new QLineEdit(QStringLiteral("42")), 120, 26), f, Frame::right, true); }},
    {"push button",
     [](Flags f) { return onEdges(sized(new QPushButton(QStringLiteral("Go")), 120, 26), f, Frame::right, true); }},
    {"disclosure head", [](Flags f) { return onEdges(disclosureHead(), f, Frame::leftBar, true); }},
    {"slider", [](Flags f) { return onEdges(sized(new VNSlider(Qt::Horizontal), 200, 40), f, Frame::right, false); }},
    {"bar chart", [](Flags f) { return onEdges(barChart(), f, Frame::right, false); }},
    {"progress bar", [](Flags f) { return onEdges(progressBar(), f, Frame::right, false); }},
    {"animated tab", animatedTab},
    {"header section", headerSection},
    {"item cell", itemCell},
    {"combo popup item", popupItem},
    {"value field sigma", sigmaMarker},
};

bool contains(const QImage& image, const QRect& rect, const QColor& colour)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (image.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

QString check(const Painted& painted, const char* part, const QRect& where, const QColor& expected)
{
    if (where.isEmpty() || !expected.isValid() || contains(painted.image, where, expected))
        return QString();
    return QStringLiteral("%1: no %2 at (%3, %4), found %5")
        .arg(QLatin1String(part), expected.name())
        .arg(where.x())
        .arg(where.y())
        .arg(painted.image.pixelColor(where.topLeft()).name());
}

// Every colour of the palette as a strip of swatches: one row per main look (frame, fill, text,
// then the disabled frame, fill and text), then the sigma bars and the compare mark.
QImage swatches()
{
    const int size = 16;
    const QMetaEnum looks = QMetaEnum::fromType<Look>();
    const QMetaEnum sigmas = QMetaEnum::fromType<SigmaLook>();
    QImage image(6 * size, looks.keyCount() * size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (int row = 1; row < looks.keyCount(); ++row) {
        const VNStatusPalette::Colors enabled = VNStatusPalette::colors(Look(looks.value(row)));
        const VNStatusPalette::Colors disabled = VNStatusPalette::colors(Look(looks.value(row)), false);
        const QColor colours[] = {enabled.frame,  enabled.fill,  enabled.text,
                                  disabled.frame, disabled.fill, disabled.text};
        for (int column = 0; column < 6; ++column)
            painter.fillRect(column * size, (row - 1) * size, size, size, colours[column]);
    }
    for (int column = 1; column < sigmas.keyCount(); ++column)
        painter.fillRect((column - 1) * size, (looks.keyCount() - 1) * size, size, size,
                         VNStatusPalette::sigmaColor(SigmaLook(sigmas.value(column))));
    painter.fillRect(5 * size, (looks.keyCount() - 1) * size, size, size, VNStatusPalette::compareColor());
    return image;
}

QColor windowColour()
{
    return QApplication::palette().color(QPalette::Window);
}
} // namespace

class StatusPaletteTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void paletteIsTheReviewedOne();
    void contrastRatioFollowsWcag();
    void looksStandOut_data();
    void looksStandOut();
    void dominantStatusKeepsTheLook();
    void familiesPaintThePalette_data();
    void familiesPaintThePalette();
    void disabledKeepsFrameAndFadesFill();
    void styleSheetCarriesTheWrittenRules();
};

void StatusPaletteTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
}

void StatusPaletteTest::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The palette's colours are a design decision: a change must be looked at and accepted, like a
// screenshot. TWC_ACCEPT_PALETTE=1 writes the reference anew.
void StatusPaletteTest::paletteIsTheReviewedOne()
{
    const QString reference = QStringLiteral(TWC_SOURCE_DIR "/autotests/toolkit/statuspalette.png");
    const QImage painted = swatches();
    if (qEnvironmentVariableIsSet("TWC_ACCEPT_PALETTE"))
        QVERIFY(painted.save(reference));
    if (painted != QImage(reference).convertToFormat(QImage::Format_RGB32)) {
        const QString result = QStringLiteral(TWC_BINARY_DIR "/statuspalette.png");
        painted.save(result);
        QFAIL(qPrintable(QStringLiteral("the status palette (%1) differs from its reference %2; after an intended "
                                        "change, look at it and run this test with TWC_ACCEPT_PALETTE=1")
                             .arg(result, reference)));
    }
}

void StatusPaletteTest::contrastRatioFollowsWcag()
{
    // Reference values of the WCAG definition.
    QCOMPARE(VNStatusPalette::contrastRatio(Qt::black, Qt::white), 21.0);
    QCOMPARE(VNStatusPalette::contrastRatio(Qt::white, Qt::white), 1.0);
    QCOMPARE(qRound(VNStatusPalette::contrastRatio(Qt::white, Qt::red) * 100), 400);
    QCOMPARE(qRound(VNStatusPalette::contrastRatio(Qt::blue, Qt::white) * 100), 859);
}

void StatusPaletteTest::looksStandOut_data()
{
    QTest::addColumn<int>("look");
    QTest::addColumn<int>("sigma");
    const QMetaEnum looks = QMetaEnum::fromType<Look>();
    for (int index = 1; index < looks.keyCount(); ++index)
        QTest::newRow(looks.key(index)) << looks.value(index) << int(SigmaLook::none);
    const QMetaEnum sigmas = QMetaEnum::fromType<SigmaLook>();
    for (int index = 1; index < sigmas.keyCount(); ++index)
        QTest::newRow(qPrintable(QStringLiteral("sigma ") + QLatin1String(sigmas.key(index))))
            << int(Look::undef) << sigmas.value(index);
    QTest::newRow("compare differs") << int(Look::undef) << int(SigmaLook::none);
}

// A frame or mark reads at 3:1 against the window around it (and the white of a view), a text at
// 4.5:1 on its fill; disabled widgets keep their frame and are exempt from the text rule.
void StatusPaletteTest::looksStandOut()
{
    QFETCH(int, look);
    QFETCH(int, sigma);
    const QColor base = QApplication::palette().color(QPalette::Base);
    QColor mark = VNStatusPalette::compareColor();
    if (look != int(Look::undef)) {
        const VNStatusPalette::Colors colors = VNStatusPalette::colors(Look(look));
        mark = colors.frame;
        QVERIFY2(VNStatusPalette::contrastRatio(colors.text, colors.fill) >= 4.5,
                 qPrintable(QString::number(VNStatusPalette::contrastRatio(colors.text, colors.fill))));
        QCOMPARE(VNStatusPalette::colors(Look(look), false).frame, mark);
    } else if (sigma != int(SigmaLook::none)) {
        mark = VNStatusPalette::sigmaColor(SigmaLook(sigma));
    }
    for (const QColor& around : {windowColour(), base})
        QVERIFY2(VNStatusPalette::contrastRatio(mark, around) >= 3.0,
                 qPrintable(QStringLiteral("%1 on %2: %3")
                                .arg(mark.name(), around.name())
                                .arg(VNStatusPalette::contrastRatio(mark, around))));
}

// Widgets that show one status only (tabs of animated tab bars) get the dominant status: alone, it
// must show the same look as the whole word.
void StatusPaletteTest::dominantStatusKeepsTheLook()
{
    for (int word = 0; word <= 0x3FFFF; word += 0x40 + (word & 0x7)) {
        const VNStatusPalette::StatusLook whole = VNStatusPalette::statusLook(Flags(word));
        const VNStatusPalette::StatusLook alone =
            VNStatusPalette::statusLook(Flags(VNWidgetStatus::getDominantStatusFromFlag(Flags(word))));
        const QString context = QString::number(word, 16);
        QVERIFY2(alone.look == whole.look, qPrintable(context));
        if (whole.look == Look::undef) {
            QVERIFY2(alone.sigma == whole.sigma, qPrintable(context));
            if (whole.sigma == SigmaLook::none)
                QVERIFY2(alone.compare == whole.compare, qPrintable(context));
        }
    }
}

void StatusPaletteTest::familiesPaintThePalette_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("word");
    for (int family = 0; family < families.size(); ++family) {
        for (int word = 0; word < int(std::size(words)); ++word)
            QTest::newRow(qPrintable(QStringLiteral("%1, %2").arg(QLatin1String(families.at(family).first),
                                                                  QLatin1String(words[word].name))))
                << family << word;
    }
}

// What a designer compares: each family paints each part of a status in its palette entry.
void StatusPaletteTest::familiesPaintThePalette()
{
    QFETCH(int, family);
    QFETCH(int, word);
    const Word& status = words[word];
    const Painted painted = families.at(family).second(Flags(status.flags));
    const VNStatusPalette::Colors colors = VNStatusPalette::colors(status.look);
    const QColor sigma = VNStatusPalette::sigmaColor(status.sigma);
    const QColor compare =
        status.flags == VNWidgetStatus::compareDifferent ? VNStatusPalette::compareColor() : QColor();
    const QColor mark = colors.isValid() ? colors.frame : sigma.isValid() ? sigma : compare;
    QStringList failures = {
        check(painted, "frame", painted.frame, colors.frame), check(painted, "fill", painted.fill, colors.fill),
        check(painted, "sigma", painted.sigma, sigma), check(painted, "compare mark", painted.compare, compare),
        check(painted, "mark", painted.mark, mark)};
    failures.removeAll(QString());
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QStringLiteral("; "))));
}

void StatusPaletteTest::disabledKeepsFrameAndFadesFill()
{
    const VNStatusPalette::Colors disabled = VNStatusPalette::colors(Look::needInput, false);
    QVERIFY(disabled.fill != VNStatusPalette::colors(Look::needInput).fill);
    QLineEdit edit(QStringLiteral("42"));
    edit.resize(120, 26);
    edit.setEnabled(false);
    VNWidgetStatus::setStatusProperty(&edit, VNWidgetStatus::needInput);
    const QImage field = edit.grab().toImage();
    QCOMPARE(field.pixelColor(field.width() - 5, field.height() / 2), disabled.fill);
    QCOMPARE(field.pixelColor(field.width() - 1, field.height() / 2), disabled.frame);

    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), int(VNWidgetStatus::needInput), VNItemDataRoles::StatusRole);
    model.setData(model.index(0, 0), false, VNItemDataRoles::ActiveRole);
    VNTreeView view;
    view.setModel(&model);
    view.setItemDelegate(new VNItemDelegate(&view));
    view.resize(200, 60);
    const QRect cell = view.visualRect(model.index(0, 0));
    const QImage cells = view.viewport()->grab().toImage();
    QCOMPARE(cells.pixelColor(cell.center().x(), cell.bottom()), disabled.fill);
    QCOMPARE(cells.pixelColor(cell.left(), cell.center().y()), disabled.frame);
}

// The applied style sheet is the one the build wrote: status rules from the palette, no marker.
void StatusPaletteTest::styleSheetCarriesTheWrittenRules()
{
    const QString sheet = VNStyleSheet::styleSheet();
    QVERIFY(sheet.contains(VNStatusStyleSheet::rules().trimmed()));
    QVERIFY(!sheet.contains(VNStatusStyleSheet::marker()));
    QCOMPARE(qApp->styleSheet(), sheet);
}

QTEST_MAIN(StatusPaletteTest)
#include "tst_statuspalette.moc"
