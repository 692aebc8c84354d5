#include "TestConverterUtility.h"

#include "TestConverterConfig.h"

#include <FileConverterDialog.h>

TestConverterUtility::TestConverterUtility(QWidget* parent)
    : m_dialog(new Varnis::FileConverterDialog(new Varnis::TestConverterConfig, QStringLiteral("TestConverter"),
                                               QStringLiteral("This is the description of the converter."), parent))
{}

void TestConverterUtility::run()
{
    m_dialog->run();
}
