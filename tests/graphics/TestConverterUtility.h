#pragma once

class QWidget;

namespace Varnis {
class FileConverterDialog;
}

// Puts the toolkit's file converter frame on screen with a dummy converter. The frame is a child
// window of the given parent, which deletes it. Its title and description are names that scripts
// look for in every locale, so they are not translated.
class TestConverterUtility
{
public:
    explicit TestConverterUtility(QWidget* parent);

    // Shows the frame; the user starts the conversion from it.
    void run();

    Varnis::FileConverterDialog* dialog() const { return m_dialog; }

private:
    Varnis::FileConverterDialog* m_dialog;
};
