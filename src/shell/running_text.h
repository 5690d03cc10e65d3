#pragma once

#include <QFontMetrics>
#include <QString>
#include <QStringList>

#include "controls/label.h"

namespace tavrune {

/// Fills a label with text line by line, leaves gaps for bold words, and places each bold word in its gap.
/// The bold words are labels of their own, on the same page.
class RunningText {
public:
    /// Precondition: `text` outlives it.
    explicit RunningText(Label* text);

    /// Adds words with blanks between them. No blank comes before a comma or a full stop.
    void add(const QString& words);
    void addBold(Label* word);
    /// Ends it by a full stop, which only `words` has.
    void endParagraph();
    /// Shows what was added.
    void finish() const;

    /// All of it without gaps, the bold words in their places.
    [[nodiscard]] QString words() const { return words_; }

private:
    Label* text_;
    QFontMetrics metrics_;
    QStringList lines_;
    QString line_;
    QString words_;

    [[nodiscard]] bool fits(const QString& line) const;
    /// The distance between two lines of a label.
    [[nodiscard]] double linePitch() const;
    void breakLine();
};

}  // namespace tavrune
