#pragma once

#include <map>
#include <string>
#include <vector>

#include <QAccessible>
#include <QSignalSpy>
#include <QWidget>

#include "controls/voice.h"

namespace tavrune::test {

/// Knows of a page only what a screen reader is told: roles, names, descriptions, states, values, actions. A
/// thing that is not there fails the test at once.
class BlindStudent {
public:
    explicit BlindStudent(QWidget& page)
        : page_(QAccessible::queryAccessibleInterface(&page)), said_(&Voice::instance(), &Voice::said) {}

    /// All that is not told to be invisible, in the order of the tree.
    [[nodiscard]] std::vector<QAccessibleInterface*> things() const;
    [[nodiscard]] std::vector<QAccessibleInterface*> things(QAccessible::Role role) const;

    [[nodiscard]] std::vector<std::string> names(QAccessible::Role role) const;
    [[nodiscard]] bool hears(QAccessible::Role role, const std::string& name) const;

    /// Presses a button by the first action that it offers.
    void press(const std::string& button) const;
    /// Chooses an option in the same way.
    void choose(const std::string& option) const;
    /// Replaces what stands in the fields, by their names.
    void type(const std::map<std::string, std::string>& texts) const;

    /// What stands in the fields, by their names.
    [[nodiscard]] std::map<std::string, std::string> fields() const;
    /// The fields that are said to be wrong, in the order of reading.
    [[nodiscard]] std::vector<std::string> wrongFields() const;
    /// The verdict that stands on the page; empty if there is none.
    [[nodiscard]] std::string verdict() const;
    /// What has been said since the last call. Qt itself delivers it only where a screen reader runs.
    [[nodiscard]] std::vector<std::string> heard();

private:
    [[nodiscard]] QAccessibleInterface& find(QAccessible::Role role, const std::string& name) const;
    void act(QAccessible::Role role, const std::string& name) const;

    QAccessibleInterface* page_;
    QSignalSpy said_;
};

[[nodiscard]] std::string nameOf(const QAccessibleInterface& thing);
[[nodiscard]] std::string descriptionOf(const QAccessibleInterface& thing);

}  // namespace tavrune::test
