#pragma once

#include "VNWidgetStatus.h"
#include "vnwidgets_export.h"

class QWidget;

// Mixed into every toolkit widget that carries a status. It keeps the status word and publishes
// it to the style sheet through the widget's dynamic properties, so each widget gets its status
// looks from the toolkit style; widgets that paint parts themselves override statusChanged().
class VNWIDGETS_EXPORT VNWidgetInterface
{
public:
    explicit VNWidgetInterface(QWidget* widget);
    virtual ~VNWidgetInterface();

    virtual VNWidgetStatus::StatusFlags getWidgetStatus() const;
    virtual void setWidgetStatus(VNWidgetStatus::StatusFlags status);

    void setStatusFlag(VNWidgetStatus::Status flag, bool on);
    bool hasStatusFlag(VNWidgetStatus::Status flag) const;

    void setNeedInputStatus(bool on);
    bool isNeedInputStatus() const;
    void setUserEditStatus(bool on);
    bool isUserEditStatus() const;
    void setSigmaEnabled(bool on);
    bool isSigmaEnabled() const;
    void setSigmaActive(bool on);
    bool isSigmaActive() const;

    QWidget* statusWidget() const { return m_widget; }

protected:
    virtual void statusChanged() {}

private:
    QWidget* m_widget;
    VNWidgetStatus::StatusFlags m_status;
};
