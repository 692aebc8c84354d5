// Prints the first-open times of the image dialogs and what SVGImage and the SVG test cost for an
// image of 1,000 text items. Run it headless: QT_QPA_PLATFORM=offscreen ./bench_images
#include "../BenchTiming.h"
#include "TestCompareIcons.h"
#include "TestComposePixmap.h"
#include "TestConverterUtility.h"
#include "TestSVG.h"

#include <FileConverterDialog.h>
#include <SVGImage.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTextStream>
#include <QVBoxLayout>

#include <cstdio>
#include <functional>

namespace {
QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QString svgWithTextItems(int count)
{
    QString svg =
        QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"400\" height=\"%1\">\n").arg(count * 12);
    for (int index = 0; index < count; ++index)
        svg += QStringLiteral("  <text x=\"4\" y=\"%1\">Item &amp; <tspan font-weight=\"bold\">%2</tspan></text>\n")
                   .arg(index * 12 + 10)
                   .arg(index);
    return svg + QStringLiteral("</svg>\n");
}

void firstOpen(const char* name, const std::function<QWidget*()>& create)
{
    QWidget* window = nullptr;
    const BenchTiming::Timing open = BenchTiming::once([&] {
        window = create();
        window->show();
        QApplication::processEvents();
    });
    out() << BenchTiming::line(QStringLiteral("first open ") + QLatin1String(name), open);
    delete window;
}

class SvgTestWithFile : public TestSVG
{
public:
    SvgTestWithFile(const QString& file)
        : TestSVG(nullptr)
        , m_file(file)
    {}

protected:
    QString chooseSvgFile() override { return m_file; }

private:
    QString m_file;
};
} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    // Qt's notes about the headless platform would bury the figures.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type != QtDebugMsg && type != QtInfoMsg && type != QtWarningMsg)
            std::fprintf(stderr, "%s\n", qPrintable(message));
    });
    out() << "Image dialogs and SVGImage (first opens include form, sample data and show)\n";
    // Warms up fonts and the style, which the first window of a process would otherwise pay for.
    firstOpen("(warm-up: common widgets)", [] {
        auto* window = new QDialog;
        auto* layout = new QVBoxLayout(window);
        layout->addWidget(new QLabel(QStringLiteral("label")));
        layout->addWidget(new QPushButton(QStringLiteral("button")));
        layout->addWidget(new QLineEdit);
        layout->addWidget(new QSpinBox);
        layout->addWidget(new QCheckBox(QStringLiteral("check")));
        return window;
    });
    firstOpen("TestCompareIcons", [] { return new TestCompareIcons(nullptr); });
    firstOpen("TestComposePixmap", [] { return new TestComposePixmap(nullptr); });
    firstOpen("TestSVG (default image)", [] { return new TestSVG(nullptr); });
    firstOpen("converter utility frame", [] { return TestConverterUtility(nullptr).dialog(); });

    const QString source = svgWithTextItems(500); // two items per text: 1,000 items
    SVGImage image;
    const BenchTiming::Timing parse = BenchTiming::once([&] { image.setSVGSource(source); });
    out() << BenchTiming::line(QStringLiteral("SVGImage parse, %1 text items").arg(image.getTextItems().size()), parse);
    for (int index = 0; index < image.getTextItems().size(); ++index) {
        image.setTextItem(index, QStringLiteral("replaced %1").arg(index));
        image.setTextItemUsed(index, true);
    }
    QString modified;
    out() << BenchTiming::line(QStringLiteral("SVGImage modified source, all items replaced"),
                               BenchTiming::once([&] { modified = image.getModifiedSource(); }));

    QTemporaryDir dir;
    QFile file(dir.filePath("items.svg"));
    file.open(QIODevice::WriteOnly);
    file.write(source.toUtf8());
    file.close();
    SvgTestWithFile dialog(file.fileName());
    dialog.show();
    QApplication::processEvents();
    auto* open = dialog.findChild<QToolButton*>(QStringLiteral("openFile"));
    const auto openFile = [&] {
        open->click();
        QApplication::processEvents();
    };
    out() << BenchTiming::line(QStringLiteral("TestSVG lists 1,000 text items"), BenchTiming::once(openFile));
    out() << BenchTiming::line(QStringLiteral("TestSVG replaces 1,000 rows by 1,000 new ones"),
                               BenchTiming::once(openFile));
    return 0;
}
