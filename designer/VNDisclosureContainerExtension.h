#pragma once

#include <QObject>
#include <QtDesigner/QDesignerContainerExtension>

class VNProgressiveDisclosure;

// A disclosure holds at most one page, its content widget, which Designer can neither add a
// second of nor remove.
class VNDisclosureContainerExtension : public QObject, public QDesignerContainerExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerContainerExtension)

public:
    VNDisclosureContainerExtension(VNProgressiveDisclosure* disclosure, QObject* parent);

    int count() const override;
    QWidget* widget(int index) const override;
    int currentIndex() const override;
    void setCurrentIndex(int) override {}
    bool canAddWidget() const override;
    void addWidget(QWidget* widget) override;
    void insertWidget(int index, QWidget* widget) override;
    bool canRemove(int) const override { return false; }
    void remove(int) override {}

private:
    VNProgressiveDisclosure* m_disclosure;
};
