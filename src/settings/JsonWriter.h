#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

namespace tessaline {

class JsonValue;

/// Writes JSON as it comes, with members in the order of the calls. The caller pairs each begin
/// with its end and gives members of objects a key. Any thread.
class JsonWriter {
public:
    enum class Layout {
        indented, ///< by two spaces; the text ends with a line feed
        compact,  ///< without any space, on one line that is not ended
    };

    /// Appends to `output`.
    explicit JsonWriter(QByteArray& output, Layout chosen = Layout::indented)
        : JsonWriter(output, chosen, 0, true) {}

    /// Appends what is inside so many objects and arrays that others write, indented.
    /// `isFirst` tells whether the innermost has nothing in it yet.
    static JsonWriter inside(QByteArray& output, int depth, bool isFirst) {
        return {output, Layout::indented, depth, isFirst};
    }

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    void key(QByteArrayView plainName); ///< ASCII that needs no escape
    void key(QStringView name);

    /// A finite number, as short as can be: 16, 0.5.
    void number(double value);
    /// The same so that it is seen to be no whole one: 16.0, 0.5, 1e+20.
    void real(double value);
    void boolean(bool value);
    void null();

    /// A text that any reader accepts: what is no character, a lone surrogate, is replaced.
    void string(QStringView text);
    /// A text whose every unit counts: a lone surrogate, which UTF-8 cannot hold, is written as its
    /// escape.
    void exactString(QStringView text);

    /// Whatever the value is. Its numbers are finite.
    void value(const JsonValue& value);

    /// Members of the current object that another writer has written.
    void members(QByteArrayView written);

private:
    JsonWriter(QByteArray& output, Layout chosen, int startDepth, bool startsFirst)
        : out(output), layout(chosen), depth(startDepth), isFirst(startsFirst) {}

    void begin(char bracket);
    void end(char bracket);
    void startValue();
    void startItem();
    void startLine();
    void appendQuoted(QStringView text);
    void appendQuotedExactly(QStringView text);

    QByteArray& out;
    const Layout layout;
    int depth;
    bool isFirst;
    bool hasKey = false;
};

} // namespace tessaline
