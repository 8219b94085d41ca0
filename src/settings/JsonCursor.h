#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tessaline {

/// A text in JSON. Borrows the JSON.
struct JsonText {
    QByteArrayView written; ///< what is between the quotes
    bool hasEscapes = false;

    /// What it stands for; with lone surrogates where the JSON has escapes of them.
    QString decoded() const;

    bool is(QByteArrayView plain) const;
    bool isUnicode() const; ///< false with half of a surrogate pair, which UTF-8 cannot hold
};

/// Goes through JSON from front to back as its caller asks. What is no JSON in valid UTF-8 ends it:
/// from there on it finds nothing, and `finish` tells where that was. Whoever meets a value takes
/// it, with the function for its kind, or skips it. Takes no memory of its own. Any thread.
class JsonCursor {
public:
    enum class Kind { none, null, boolean, number, text, array, object };

    /// The JSON is borrowed.
    explicit JsonCursor(QByteArrayView json);

    /// Of the value that comes next.
    Kind kind();

    void takeNull() { skipLiteral(); }
    bool takeBoolean();
    double takeNumber(); ///< infinite when it is beyond any double
    JsonText takeText();
    void skip(); ///< whatever it is

    /// Enters an array or an object. More than 512 of them in each other are refused.
    void enter();
    /// Goes to the next element of an array. False at its end, which also leaves it.
    bool nextElement() { return goOn(']'); }
    /// Goes to the next member of an object and gives its name. None at its end, which also leaves
    /// it.
    std::optional<JsonText> nextMember();

    /// Ends the reading for a reason of the caller's. Always false.
    bool refuse(const QString& reason);

    /// Whether all was read and was one value; else with the first reason why not.
    bool finish(QString* error = nullptr);

private:
    char peek();
    bool goOn(char closing);
    bool fail();
    void skipLiteral();
    void skipNumber();
    bool skipDigits();
    bool skipEscape();

    const char* const begin;
    const char* const end;
    const char* at;
    int depth = 0;
    bool isFirst = true; ///< of the innermost array or object nothing was met yet
    QString problem;
};

} // namespace tessaline
