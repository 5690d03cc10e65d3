#include "app/qt_danish.h"

#include <string_view>

namespace tavrune {
namespace {

/// Returns whether it takes no words to answer: pages are in Danish already, and Danish is read from left to
/// right, as is whatever says nothing of it.
bool needsNoWords(const char* context, std::string_view word) {
    return (context != nullptr && std::string_view(context).starts_with("tavrune::")) ||
           word == "QT_LAYOUT_DIRECTION";
}

}  // namespace

QString QtDanish::translate(const char* context, const char* word, const char* disambiguation,
                            int count) const {
    if (needsNoWords(context, word)) {
        return {};
    }
    std::call_once(isAskedFor_, [this] { static_cast<void>(words_.load("qtbase_da", folder_)); });
    return words_.translate(context, word, disambiguation, count);
}

}  // namespace tavrune
