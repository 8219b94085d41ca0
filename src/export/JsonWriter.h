#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

namespace tessaline {

/// Writes JSON as it comes, indented by two spaces, with members in the order of the calls. The
/// caller pairs each begin with its end and gives members of objects a key.
class JsonWriter {
public:
    /// Appends to `output`. A `startDepth` above 0 continues inside as many objects and arrays, the
    /// innermost of which has members already.
    explicit JsonWriter(QByteArray& output, int startDepth = 0)
        : out(output), depth(startDepth), isFirst(startDepth == 0) {}

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    void key(QByteArrayView name);

    /// A finite number.
    void number(double value);
    void boolean(bool value);

    /// A text; a lone surrogate, which UTF-8 cannot hold, is written as its escape.
    void string(QStringView text);

    /// Members of the current object that another writer has written.
    void members(QByteArrayView written);

private:
    void begin(char bracket);
    void end(char bracket);
    void startValue();
    void startLine();

    QByteArray& out;
    int depth;
    bool isFirst;
    bool hasKey = false;
};

} // namespace tessaline
