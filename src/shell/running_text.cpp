#include "shell/running_text.h"

namespace tavrune {

RunningText::RunningText(Label* text) : text_(text), metrics_(designFont()) {}

bool RunningText::fits(const QString& line) const {
    return metrics_.horizontalAdvance(line) <= text_->place().width();
}

double RunningText::linePitch() const {
    const auto height = [this](const QString& text) { return metrics_.size({}, text).height(); };
    return (height("x\nx\nx\nx\nx\nx\nx\nx\nx\nx\nx") - height("x")) / 10.0;
}

void RunningText::breakLine() {
    lines_ << line_;
    line_.clear();
}

void RunningText::add(const QString& words) {
    words_ += (words.startsWith(',') || words.startsWith('.') || words_.isEmpty() ? "" : " ") + words;
    const QStringList all = words.split(' ', Qt::SkipEmptyParts);
    for (const QString& word : all) {
        const QString separator = line_.isEmpty() || word.startsWith(',') || word.startsWith('.') ? "" : " ";
        if (!fits(line_ + separator + word)) {
            breakLine();
            line_ = word;
        } else {
            line_ += separator + word;
        }
    }
}

void RunningText::addBold(Label* word) {
    words_ += " " + word->text();
    const QString blank = " ";
    const double width = word->textWidth();
    QString gap = line_.isEmpty() ? "" : blank;
    const double room = text_->place().width();
    if (metrics_.horizontalAdvance(line_ + gap) + width > room) {
        breakLine();
        gap.clear();
    }
    const double left = metrics_.horizontalAdvance(line_ + gap);
    word->setLeft(text_->place().left() + left);
    word->setTop(text_->place().top() + static_cast<double>(lines_.size()) * linePitch());
    line_ += gap;
    while (metrics_.horizontalAdvance(line_) < left + width) {
        line_ += blank;
    }
}

void RunningText::finish() const { text_->setText((lines_ + QStringList(line_)).join('\n')); }

void RunningText::endParagraph() {
    words_ += words_.endsWith('.') ? "" : ".";
    breakLine();
}

}  // namespace tavrune
