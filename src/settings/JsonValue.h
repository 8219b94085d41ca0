#pragma once

#include <QString>
#include <QStringView>

#include <variant>
#include <vector>

namespace tessaline {

struct JsonMember;

/// A value of a JSON file: null, true or false, a number, a text, an array or an object.
class JsonValue {
public:
    using Array = std::vector<JsonValue>;
    using Object = std::vector<JsonMember>; ///< in the file's order

    /// The content if it is a `bool`, `double`, `QString`, `Array` or `Object`, whichever is asked
    /// for; else null.
    template <typename T>
    const T* as() const {
        return std::get_if<T>(&content);
    }

    bool isNull() const { return std::holds_alternative<std::monostate>(content); }

    /// An object's member of this name, the last one if there are several; null if there is none,
    /// as in everything that is not an object.
    const JsonValue* find(QStringView name) const;

    std::variant<std::monostate, bool, double, QString, Array, Object> content;
};

struct JsonMember {
    QString name;
    JsonValue value;
};

} // namespace tessaline
