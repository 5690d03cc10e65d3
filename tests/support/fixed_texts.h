#pragma once

#include <span>

#include <QGroupBox>
#include <QVariant>

#include <gtest/gtest.h>

#include "support/form_driver.h"

namespace tavrune::test {

/// A text that the design of a form fixes for one of its controls.
struct FixedText {
    const char* control;
    const char* text;
};

/// Labels, buttons, options and frames alike.
inline void expectTexts(const FormDriver& form, std::span<const FixedText> texts) {
    for (const auto& [control, text] : texts) {
        const QWidget& widget = form.find(control);
        const bool isFrame = qobject_cast<const QGroupBox*>(&widget) != nullptr;
        EXPECT_EQ(widget.property(isFrame ? "title" : "text").toString().toStdString(), text) << control;
    }
}

}  // namespace tavrune::test
