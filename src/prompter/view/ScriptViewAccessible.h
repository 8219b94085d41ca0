#pragma once

#include <QAccessibleWidget>

#include <cstddef>
#include <memory>
#include <vector>

namespace tessaline {

class ScriptView;
struct Script;

/// Makes every script view from now on speak to screen readers. May be called more than once.
void installScriptViewAccessibility();

/// What a screen reader sees of a script view: a read-only text of many lines, and its headings as
/// objects of their own, behind the view's widgets.
class ScriptViewAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit ScriptViewAccessible(ScriptView& view);
    ~ScriptViewAccessible() override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    int selectionCount() const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int startOffset, int endOffset) const override;
    using QAccessibleWidget::text;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

private:
    ScriptView& view() const;
    const Script& script() const;
    void select(int anchor, int caret);
    void findHeadings() const;
    void forgetHeadings() const;

    struct Heading {
        std::size_t paragraph;
        QAccessible::Id id; ///< 0 until somebody asks for the object
    };
    mutable std::shared_ptr<const Script> searchedScript;
    mutable std::vector<Heading> headings; ///< of that script
};

} // namespace tessaline
