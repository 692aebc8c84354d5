#include <TestWidgetCollection.h>

#include <QApplication>
#include <QPushButton>
#include <QTextStream>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    panel.show();
    QTextStream(stdout) << "buttons: " << panel.findChildren<QPushButton*>().size() << '\n';
    return 0;
}
