#pragma once

#include <map>
#include <set>
#include <utility>
#include <vector>

#include <QStringList>
#include <QWidget>

#include "controls/answer_box.h"
#include "graph/graph_box.h"

namespace tavrune {

/// What there is to hear on the page of an exercise, for one who cannot see it.
class Hearing {
public:
    explicit Hearing(const QWidget& design) : design_(&design) {}

    /// The task in full: what stands on the page beside its graphs and answer rows, and the fields that are
    /// filled.
    [[nodiscard]] QString task() const;
    /// All graphs that are seen, in words.
    [[nodiscard]] QString graphs() const;

    /// Takes all that is seen now for said.
    void takeForSaid();
    /// What stands in the fields now is no news, since the student has typed it, nor what is on the graphs.
    void takeFieldsForSaid();
    /// What has come into sight since it was last asked, a text each, and the fields whose content is
    /// another, and what has come onto the graphs; from now on it counts as said. What was covered in between
    /// is no news.
    [[nodiscard]] QStringList news();

private:
    /// A text by its first label.
    using Said = std::pair<const QWidget*, QString>;

    [[nodiscard]] std::vector<Said> shown() const;
    [[nodiscard]] std::map<const AnswerBox*, QString> fields() const;
    [[nodiscard]] QStringList newTexts();
    [[nodiscard]] QStringList newInFields();
    [[nodiscard]] QStringList newOnGraphs() const;

    const QWidget* design_;
    std::set<Said> said_;
    std::map<const AnswerBox*, QString> fields_;
    std::map<const GraphBox*, std::vector<Stroke>> drawn_;
};

}  // namespace tavrune
