#pragma once

#include <mutex>
#include <utility>

#include <QString>
#include <QTranslator>

namespace tavrune {

/// Qt's own words in Danish: buttons of message boxes, context menus of fields, names of keys. They are read
/// when one of them is first asked for, since the start page shows none.
class QtDanish : public QTranslator {
public:
    /// With the words of the file "qtbase_da.qm" in a folder; where there is none, Qt's words stay English.
    explicit QtDanish(QString folder) : folder_(std::move(folder)) {}

    /// Returns a word of Qt's in Danish; null for one that the file does not have, and for the texts of the
    /// pages. The context may be null.
    [[nodiscard]] QString translate(const char* context, const char* word, const char* disambiguation,
                                    int count) const override;

    /// Returns whether no words have been read, at least not yet.
    [[nodiscard]] bool isEmpty() const override { return words_.isEmpty(); }

private:
    QString folder_;
    // Words may be asked for from any thread.
    mutable std::once_flag isAskedFor_;
    mutable QTranslator words_;
};

}  // namespace tavrune
