#pragma once

#include <functional>
#include <vector>

#include <QString>
#include <QWidget>

namespace tavrune {

/// What is read in one breath: a row of labels, a formula with its fractions, a paragraph.
struct Passage {
    /// As a Danish voice is to say it. Empty where there is nothing to say, as for a closing bracket behind a
    /// field.
    QString words;
    /// The first of the pieces, always a label.
    const QWidget* lead = nullptr;
    /// All labels and lines that it is made of.
    std::vector<const QWidget*> pieces;
};

/// All that is written in `region`, in the order in which somebody reads who sees it: one column after the
/// other where white parts them, each from the top, each row from the left. Fields and buttons are said by
/// themselves: they end a passage. Of the descendants, those are read for which `isSeen` holds, a label with
/// no text never; a box of others is gone into if `isEntered` holds too, and read for itself.
[[nodiscard]] std::vector<Passage> passages(const QWidget& region,
                                            const std::function<bool(const QWidget&)>& isSeen,
                                            const std::function<bool(const QWidget&)>& isEntered);

/// The same with no box gone into.
[[nodiscard]] std::vector<Passage> passages(const QWidget& region,
                                            const std::function<bool(const QWidget&)>& isSeen);

}  // namespace tavrune
