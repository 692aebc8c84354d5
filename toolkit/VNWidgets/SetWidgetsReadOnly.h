#pragma once

#include "vnwidgets_export.h"

class QWidget;

// Puts one widget at a time into or out of the toolkit's read-only state: editors get their own
// read-only mode, other input widgets refuse input and show the read-only look.
class VNWIDGETS_EXPORT SetWidgetsReadOnly
{
public:
    explicit SetWidgetsReadOnly(bool readOnly);

    void operator()(QWidget* widget) const;

    static const char* const readOnlyPropertyName;

private:
    bool m_readOnly;
};
