#pragma once

#include <initializer_list>
#include <source_location>
#include <span>
#include <string>
#include <utility>

#include <QGroupBox>
#include <QVariant>

#include <gtest/gtest.h>

#include "support/student.h"

/// What is asked of several controls of a form at once. A failure tells the control, and the line of the test
/// that asks.
namespace tavrune::test {

using Where = std::source_location;

/// A control by its name, and the text that it is to bear.
struct FixedText {
    const char* control;
    const char* text;
};

/// Labels, buttons, options and frames alike.
inline void expectTexts(const Student& form, std::span<const FixedText> texts,
                        const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    for (const auto& [control, text] : texts) {
        const QWidget& widget = form.find(control);
        const bool isFrame = qobject_cast<const QGroupBox*>(&widget) != nullptr;
        EXPECT_EQ(widget.property(isFrame ? "title" : "text").toString().toStdString(), text) << control;
    }
}

inline void expectTexts(const Student& form, std::initializer_list<FixedText> texts,
                        const Where& where = Where::current()) {
    expectTexts(form, std::span(texts.begin(), texts.size()), where);
}

/// Of each box, what stands in it.
template <class Contents = std::initializer_list<std::pair<const char*, const char*>>>
void expectContents(const Student& form, const Contents& contents, const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    for (const auto& [box, content] : contents) {
        EXPECT_EQ(form.box(box).content(), content) << box;
    }
}

/// By the controls' own flags, as Student::isShown.
template <class Names = std::initializer_list<const char*>>
void expectShown(const Student& form, const Names& names, bool isShown = true,
                 const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    for (const auto& name : names) {
        EXPECT_EQ(form.isShown(name), isShown) << name;
    }
}

template <class Names = std::initializer_list<const char*>>
void expectHidden(const Student& form, const Names& names, const Where& where = Where::current()) {
    expectShown(form, names, false, where);
}

/// Labels without a caption.
inline void expectBlank(const Student& form, std::initializer_list<const char*> labels,
                        const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    for (const char* label : labels) {
        EXPECT_EQ(form.caption(label), "") << label;
    }
}

/// By the font of their captions.
inline void expectUnderlined(const Student& form, std::initializer_list<const char*> labels,
                             bool isUnderlined = true, const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    for (const char* label : labels) {
        EXPECT_EQ(form.label(label).font().underline(), isUnderlined) << label;
    }
}

/// The focus stands on the first of some controls, and Enter leads from each to the next.
inline void expectWayByEnter(const Student& form, std::initializer_list<const char*> way,
                             const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    const char* at = nullptr;
    for (const char* next : way) {
        if (at != nullptr) {
            form.press(at, Qt::Key_Return);
        }
        EXPECT_EQ(form.focus(), next);
        at = next;
    }
}

}  // namespace tavrune::test
