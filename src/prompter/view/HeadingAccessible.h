#pragma once

#include <QAccessibleInterface>
#include <QPointer>

#include <cstddef>
#include <memory>

namespace tessaline {

class ScriptView;
struct Script;

/// A heading of a script view's text, as screen readers meet it: an object of its own, which they
/// can list and go to. It is valid until the view shows another text.
class HeadingAccessible : public QAccessibleInterface {
public:
    HeadingAccessible(ScriptView& view, std::size_t paragraph);

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::Heading; }
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;

    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    std::size_t paragraph() const { return index; }

private:
    QPointer<ScriptView> view;
    std::shared_ptr<const Script> script;
    std::size_t index;
};

} // namespace tessaline
