#include "controls/spoken.h"

#include <algorithm>
#include <vector>

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace tavrune {
namespace {

/// What a piece of a text is in mathematics: a number or name that is reckoned with, a word between them, a
/// sign, or anything else.
enum class Kind { Operand, Word, Prose, Sign, Power, Opening, Closing, Mark };

struct Token {
    Kind kind;
    QString text;
    bool followsBlank;
    /// Said in place of the text, as words of their own; the text itself as it stands, if null.
    QString words;
};

using Tokens = std::vector<Token>;

const QHash<QString, QString>& signWords() {
    static const QHash<QString, QString> words{
        {"=>", "medfører"},
        {"⇒", "medfører"},
        {"=", "lig med"},
        {"≠", "forskellig fra"},
        {"≈", "cirka lig med"},
        {"<", "mindre end"},
        {">", "større end"},
        {"≤", "mindre end eller lig med"},
        {"<=", "mindre end eller lig med"},
        {"≥", "større end eller lig med"},
        {">=", "større end eller lig med"},
        {"+", "plus"},
        {"±", "plus minus"},
        {"-", "minus"},
        {"−", "minus"},
        {"–", "minus"},
        {"·", "gange"},
        {"×", "gange"},
        {"*", "gange"},
        {"/", "divideret med"},
    };
    return words;
}

const QHash<QChar, QString>& powerWords() {
    static const QHash<QChar, QString> words{{u'²', "i anden"},   {u'³', "i tredje"}, {u'⁴', "i fjerde"},
                                             {u'⁵', "i femte"},   {u'⁶', "i sjette"}, {u'⁷', "i syvende"},
                                             {u'⁸', "i ottende"}, {u'⁹', "i niende"}, {u'ⁿ', "i n'te"}};
    return words;
}

const QHash<QChar, QString>& operandWords() {
    static const QHash<QChar, QString> words{
        {u'α', "alfa"},
        {u'β', "beta"},
        {u'γ', "gamma"},
        {u'δ', "delta"},
        {u'ε', "epsilon"},
        {u'λ', "lambda"},
        {u'μ', "my"},
        {u'π', "pi"},
        {u'σ', "sigma"},
        {u'φ', "fi"},
        {u'ω', "omega"},
        {u'Δ', "delta"},
        {u'Σ', "sigma"},
        {u'Ω', "omega"},
        {u'½', "en halv"},
        {u'¼', "en fjerdedel"},
        {u'¾', "tre fjerdedele"},
        {u'∞', "uendelig"},
        {u'√', "kvadratroden af"},
        {u'∫', "integralet af"},
    };
    return words;
}

/// What a part of a formula that is no line of text begins with, once it is put into words.
bool beginsPart(const QString& word) {
    return word == "brøk" || word == "kvadratroden" || word == "integralet";
}

/// A word that a formula is read with is no prose.
bool belongsToFormula(const QString& word) {
    static const QStringList words{"over", "slut", "af", "fra", "til"};
    return beginsPart(word) || words.contains(word);
}

/// "Q", "P1", "TVC", "Ep", "Pmax", "dQ": what stands for a number, unlike a word.
bool isName(const QString& word) {
    static const QRegularExpression name(
        "^([A-Za-hj-z](\\d+[a-z]?)?|[A-Z]{2,4}\\d?|[PQE]([abp]|max|min|total)[a-z\\d]?|d[A-Z]{1,3})$");
    return name.match(word).hasMatch();
}

/// Of two names without a sign between them, as in "aQ" and "a1Q": the length of the first. 0 if it is one.
qsizetype firstOfTwoNames(const QString& word) {
    static const QRegularExpression product("^([abc]\\d?)[A-Z]\\d?$");
    return product.match(word).capturedLength(1);
}

class Reader {
public:
    explicit Reader(const QString& text) : text_(text) {}

    [[nodiscard]] Tokens tokens() {
        while (at_ < text_.size()) {
            if (text_[at_].isSpace()) {
                blank_ = true;
                ++at_;
            } else {
                read();
            }
        }
        return std::move(tokens_);
    }

private:
    const QString& text_;
    qsizetype at_ = 0;
    bool blank_{};
    Tokens tokens_;

    [[nodiscard]] QChar peek(qsizetype ahead) const {
        const QStringView rest = QStringView(text_).mid(at_ + ahead);
        return rest.isEmpty() ? QChar() : rest.front();
    }

    void take(Kind kind, qsizetype length, const QString& words = {}) {
        tokens_.push_back({kind, text_.mid(at_, length), blank_, words});
        blank_ = false;
        at_ += length;
    }

    void read() {
        const QChar first = text_[at_];
        if (const auto words = operandWords().constFind(first); words != operandWords().cend()) {
            take(Kind::Operand, 1, *words);
        } else if (const auto power = powerWords().constFind(first); power != powerWords().cend()) {
            take(Kind::Power, 1, *power);
        } else if (first.isDigit()) {
            readNumber();
        } else if (first.isLetter()) {
            readWord();
        } else if (signWords().contains(text_.mid(at_, 2))) {
            // The last one may stand alone.
            take(Kind::Sign, 2);
        } else if (signWords().contains(first)) {
            take(Kind::Sign, 1);
        } else {
            take(first == u'(' ? Kind::Opening : first == u')' ? Kind::Closing : Kind::Mark, 1);
        }
    }

    void readNumber() {
        qsizetype length = 1;
        while (peek(length).isDigit() ||
               ((peek(length) == u',' || peek(length) == u'.') && peek(length + 1).isDigit())) {
            ++length;
        }
        take(Kind::Operand, length);
        // "2Q": two words.
        blank_ = peek(0).isLetter();
    }

    void readWord() {
        const auto isInWord = [](QChar sign) {
            return sign.isLetterOrNumber() && !operandWords().contains(sign) && !powerWords().contains(sign);
        };
        qsizetype length = 1;
        while (isInWord(peek(length))) {
            ++length;
        }
        const QString word = text_.mid(at_, length);
        if (const qsizetype first = firstOfTwoNames(word); first > 0) {
            take(Kind::Operand, first);
            blank_ = true;
            take(Kind::Operand, length - first);
        } else if (word == "oo") {
            take(Kind::Operand, length, "uendelig");
        } else if (isName(word)) {
            take(Kind::Operand, length);
            readPrime();
        } else {
            take(belongsToFormula(word) ? Kind::Word : Kind::Prose, length);
        }
    }

    /// "P'", but not the end of a quotation or "Q's".
    void readPrime() {
        const qsizetype start = at_ - tokens_.back().text.size();
        if ((peek(0) == u'\'' || peek(0) == u'′') && !peek(1).isLetter() &&
            (start == 0 || text_[start - 1] != u'\'')) {
            take(Kind::Power, 1, "mærke");
        }
    }
};

/// Finds the words of a text whose pieces are told apart.
class Speaker {
public:
    explicit Speaker(Tokens tokens) : tokens_(std::move(tokens)) {}

    [[nodiscard]] QString words() {
        for (std::size_t i = 0; i != tokens_.size(); ++i) {
            if (tokens_[i].kind == Kind::Sign && isSign(i)) {
                tokens_[i].words = signWords().value(tokens_[i].text);
            }
        }
        if (tokens_.size() == 1 && tokens_.front().text == ";") {
            // Between the fields of a point.
            tokens_.front().words = "semikolon";
        }
        sayBrackets();
        QString said;
        for (const Token& token : tokens_) {
            if (token.words.isNull()) {
                said += (token.followsBlank ? " " : "") + token.text;
            } else {
                said += " " + token.words + " ";
            }
        }
        static const QRegularExpression looseBlank("(?<=\\() | (?=[,.:)]( |$))");
        return said.simplified().remove(looseBlank);
    }

private:
    Tokens tokens_;

    /// False before the first and behind the last.
    [[nodiscard]] bool is(std::size_t i, std::initializer_list<Kind> kinds) const {
        return i < tokens_.size() && std::find(kinds.begin(), kinds.end(), tokens_[i].kind) != kinds.end();
    }

    [[nodiscard]] bool beginsOperand(std::size_t i) const {
        return is(i, {Kind::Operand, Kind::Opening}) || (is(i, {Kind::Word}) && beginsPart(tokens_[i].text));
    }

    [[nodiscard]] bool endsOperand(std::size_t i) const {
        return is(i, {Kind::Operand, Kind::Closing, Kind::Power}) ||
               (is(i, {Kind::Word}) && tokens_[i].text == "slut");
    }

    /// The comma behind "brøk slut".
    [[nodiscard]] bool isFractionEnd(std::size_t comma) const {
        return is(comma - 1, {Kind::Word}) && tokens_[comma - 1].text == "slut";
    }

    /// As a sign of mathematics, unlike the hyphen of a word and the bar of "og/eller".
    [[nodiscard]] bool isSign(std::size_t i) const {
        const QString& text = tokens_[i].text;
        const bool isAlone = tokens_.size() == 1;
        const bool isLast = i + 1 == tokens_.size();
        const bool hasNext = beginsOperand(i + 1) || is(i + 1, {Kind::Sign});
        if (text == "/") {
            return isAlone || ((endsOperand(i - 1) || isFractionEnd(i - 1)) && hasNext);
        }
        if (text == "-" || text == "–") {
            if (!tokens_[i].followsBlank && is(i - 1, {Kind::Prose})) {
                return false;
            }
            return isLast ? isAlone || endsOperand(i - 1) || is(i - 1, {Kind::Sign}) : hasNext;
        }
        if (text == "<" || text == ">" || text == "*") {
            return isAlone || hasNext || endsOperand(i - 1);
        }
        return true;
    }

    void sayBrackets() {
        std::vector<std::size_t> open;
        for (std::size_t i = 0; i != tokens_.size(); ++i) {
            if (tokens_[i].kind == Kind::Opening) {
                open.push_back(i);
            } else if (tokens_[i].kind == Kind::Closing && !open.empty()) {
                sayPair(open.back(), i);
                open.pop_back();
            } else if (tokens_[i].kind == Kind::Closing) {
                sayLoneClosing(i);
            }
        }
        for (const std::size_t i : open) {
            // What it opens stands in a field behind it, or on the next line.
            tokens_[i].words = i + 1 < tokens_.size() ? "parentes" : "";
        }
    }

    /// "A)" counts; what closes a line alone says nothing.
    void sayLoneClosing(std::size_t i) {
        if (i == 0) {
            tokens_[i].words = tokens_.size() == 1 ? "" : "parentes slut";
        } else if (tokens_[i].followsBlank || !is(i - 1, {Kind::Operand})) {
            tokens_[i].words = "parentes slut";
        }
    }

    /// What a pair of brackets holds, seen without the brackets in it.
    struct Content {
        bool hasProse = false;
        bool hasSign = false;
        bool isPoint = false;
    };

    [[nodiscard]] Content contentOf(std::size_t opening, std::size_t closing) const {
        Content content;
        int depth = 0;
        for (std::size_t i = opening + 1; i != closing; ++i) {
            const Token& token = tokens_[i];
            depth += token.kind == Kind::Opening ? 1 : token.kind == Kind::Closing ? -1 : 0;
            content.hasProse = content.hasProse || token.kind == Kind::Prose;
            content.hasSign = content.hasSign || (token.kind == Kind::Sign && i > opening + 1);
            content.isPoint = content.isPoint ||
                              (depth == 0 && (token.text == ";" || (token.text == "," && !endsFraction(i))));
        }
        return content;
    }

    /// The comma before "brøk slut", or the one behind it.
    [[nodiscard]] bool endsFraction(std::size_t comma) const {
        return isFractionEnd(comma) || isFractionEnd(comma + 3);
    }

    void sayPair(std::size_t opening, std::size_t closing) {
        const Content content = contentOf(opening, closing);
        const bool isRaised = is(closing + 1, {Kind::Power});
        if (content.hasProse || closing == opening + 1) {
            return;
        }
        if (content.isPoint) {
            sayPoint(opening, closing);
        } else if (isFunction(opening)) {
            tokens_[opening].words = tokens_[opening - 1].text == "d" ? "" : "af";
            tokens_[closing].words = "";
            if (content.hasSign) {
                wrap(opening, closing);
            }
        } else if (content.hasSign || isRaised || isNegativeFactor(opening)) {
            wrap(opening, closing);
        } else if (!belongsToProse(opening, closing)) {
            tokens_[opening].words = "";
            tokens_[closing].words = "";
        } else if (tokens_[opening + 1].text == "oo") {
            // Told as what is to be typed.
            tokens_[opening + 1].words = "o o";
        }
    }

    /// "4(-3)" would be a difference without its brackets.
    [[nodiscard]] bool isNegativeFactor(std::size_t opening) const {
        return endsOperand(opening - 1) && is(opening + 1, {Kind::Sign});
    }

    /// "styk (Q)", but not "brøk: (-4)*6".
    [[nodiscard]] bool belongsToProse(std::size_t opening, std::size_t closing) const {
        return is(opening - 1, {Kind::Prose}) ||
               (is(opening - 1, {Kind::Mark}) && !is(closing + 1, {Kind::Sign}));
    }

    void wrap(std::size_t opening, std::size_t closing) {
        tokens_[opening].words += tokens_[opening].words.isEmpty() ? "parentes" : " parentes";
        tokens_[closing].words = "parentes slut";
    }

    /// "P(w)", "P'(2)" and "d(TVC)", but not a factor before a bracket.
    [[nodiscard]] bool isFunction(std::size_t opening) const {
        if (opening == 0 || tokens_[opening].followsBlank) {
            return false;
        }
        const Token& before = tokens_[opening - 1];
        return before.words == "mærke" || (before.kind == Kind::Operand && before.text.size() == 1 &&
                                           (before.text[0].isUpper() || before.text == "d") &&
                                           (opening == 1 || tokens_[opening - 2].kind != Kind::Operand));
    }

    void sayPoint(std::size_t opening, std::size_t closing) {
        tokens_[opening].words = "";
        tokens_[closing].words = "";
        for (std::size_t i = opening + 1; i != closing; ++i) {
            if (tokens_[i].text == ";") {
                tokens_[i].words = "semikolon";
            } else if (tokens_[i].text == "," && !endsFraction(i)) {
                tokens_[i].words = "komma";
            }
        }
    }
};

}  // namespace

QString spoken(const QString& text) { return Speaker(Reader(text).tokens()).words(); }

}  // namespace tavrune
