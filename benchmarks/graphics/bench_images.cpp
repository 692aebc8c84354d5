// Prints the first-open times of the image dialogs and what SVGImage and the SVG test cost for an
// image of 1,000 text items. Run it headless: QT_QPA_PLATFORM=offscreen ./bench_images
#include "TestCompareIcons.h"
#include "TestComposePixmap.h"
#include "TestConverterUtility.h"
#include "TestSVG.h"

#include <FileConverterDialog.h>
#include <SVGImage.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QElapsedTimer>
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

double milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.nsecsElapsed() / 1e6;
}

void firstOpen(const char* name, const std::function<QWidget*()>& create)
{
    QWidget* window = nullptr;
    const double elapsed = milliseconds([&] {
        window = create();
        window->show();
        QApplication::processEvents();
    });
    out() << QStringLiteral("first open %1: %2 ms\n").arg(QLatin1String(name)).arg(elapsed, 0, 'f', 1);
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
    const double parse = milliseconds([&] { image.setSVGSource(source); });
    out() << QStringLiteral("SVGImage parse, %1 text items: %2 ms\n")
                 .arg(image.getTextItems().size())
                 .arg(parse, 0, 'f', 1);
    for (int index = 0; index < image.getTextItems().size(); ++index) {
        image.setTextItem(index, QStringLiteral("replaced %1").arg(index));
        image.setTextItemUsed(index, true);
    }
    QString modified;
    const double write = milliseconds([&] { modified = image.getModifiedSource(); });
    out() << QStringLiteral("SVGImage modified source, all items replaced: %1 ms\n").arg(write, 0, 'f', 1);

    QTemporaryDir dir;
    QFile file(dir.filePath("items.svg"));
    file.open(QIODevice::WriteOnly);
    file.write(source.toUtf8());
    file.close();
    SvgTestWithFile dialog(file.fileName());
    dialog.show();
    QApplication::processEvents();
    auto* open = dialog.findChild<QToolButton*>(QStringLiteral("openFile"));
    const double list = milliseconds([&] {
        open->click();
        QApplication::processEvents();
    });
    out() << QStringLiteral("TestSVG lists 1,000 text items: %1 ms\n").arg(list, 0, 'f', 1);
    const double again = milliseconds([&] {
        open->click();
        QApplication::processEvents();
    });
    out() << QStringLiteral("TestSVG replaces 1,000 rows by 1,000 new ones: %1 ms\n").arg(again, 0, 'f', 1);
    return 0;
}
