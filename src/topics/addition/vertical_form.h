#pragma once

#include <vector>

#include "controls/panel.h"
#include "graph/graph_box.h"
#include "shell/exercise_form.h"
#include "topics/addition/answer_rows.h"
#include "topics/addition/vertical_model.h"

namespace tavrune {

/// What the vertical additions share: two given functions, each in its frame, the tall graph of their sum,
/// the rows in which it is typed, and how it is judged and given.
class VerticalForm : public ExerciseForm {
protected:
    VerticalForm(PageName name, Draws& draws) : ExerciseForm(name, draws), rows_({}) {}

    struct Graph {
        GraphBox* frame;
        GraphBox* box;
    };
    struct Graphs {
        Graph function1;
        Graph function2;
        Graph sum;
    };

    // Bindings, for the constructor.
    void graphs(const Graphs& roles) { graphs_ = roles; }
    void answerRows(std::vector<AnswerRows::Row> rows) { rows_ = AnswerRows(std::move(rows)); }
    void helpPanel(Panel* panel, QWidget* firstVis);

    /// The sum of the exercise.
    [[nodiscard]] virtual VerticalSum sum() const = 0;

    void judge() override;
    void giveAnswer() override;
    void help() override;

    /// Ticks on the frames, nothing on the boxes.
    void clearGraphs();
    /// Blank rows that wait for an answer.
    void startAsking();
    /// To the slope of the first segment that is asked for.
    void focusOnFirstRow();

private:
    Graphs graphs_{};
    AnswerRows rows_;
    Panel* panel_ = nullptr;
    QWidget* firstVis_ = nullptr;
};

}  // namespace tavrune
