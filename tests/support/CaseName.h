#pragma once

#include <QByteArray>
#include <QMetaEnum>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <gtest/gtest.h>

#include <concepts>
#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <type_traits>

namespace tessaline {

/// A text in the letters, digits and underscores that the name of a test may have: signs are
/// spelled out, other characters given by their number, and what is long is cut.
std::string nameOfText(const QString& text);

/// The same of bytes that may be no UTF-8.
std::string nameOfBytes(const QByteArray& bytes);

/// The name, or one made of it that no earlier case of the suite has.
std::string nameOfItsOwn(const std::string& name, std::size_t index,
                         std::set<std::string>& earlier);

/// What the tests print of a value; nothing where that would be its bytes or its address.
template <typename T>
std::string nameOfPrinted(const T& value) {
    const QString printed = QString::fromStdString(testing::PrintToString(value));
    const bool isOpaque = std::is_pointer_v<T> || printed.contains(QLatin1String("-byte object <"));
    return isOpaque ? std::string() : nameOfText(printed);
}

template <typename T>
std::string nameOfValue(const T& value) {
    if constexpr (std::same_as<T, bool>) {
        return value ? "True" : "False";
    } else if constexpr (QtPrivate::IsQEnumHelper<T>::Value) {
        return QMetaEnum::fromType<T>().valueToKey(int(value));
    } else if constexpr (requires { rawValue(value); }) {
        return nameOfValue(rawValue(value));
    } else if constexpr (std::is_arithmetic_v<T>) {
        return nameOfText(QString::number(value));
    } else if constexpr (std::convertible_to<T, QString>) {
        return nameOfText(value);
    } else if constexpr (std::convertible_to<T, QStringView>) {
        return nameOfText(QStringView(value).toString());
    } else if constexpr (std::convertible_to<T, const char*> || std::same_as<T, QByteArray>) {
        return nameOfBytes(value);
    } else if constexpr (std::convertible_to<T, std::string>) {
        return nameOfText(QString::fromStdString(value));
    } else if constexpr (std::same_as<T, QStringList>) {
        return nameOfText(value.join(QLatin1Char(' ')));
    } else {
        return nameOfPrinted(value);
    }
}

template <typename T>
std::string nameOfValue(const std::optional<T>& value) {
    return value ? nameOfValue(*value) : "None";
}

template <typename... Parts>
std::string nameOfValue(const std::tuple<Parts...>& parts) {
    const auto joined = [](const auto&... part) { return ((nameOfValue(part) + "_") + ...); };
    return std::apply(joined, parts);
}

/// Names the cases of a suite by their values: the last argument of INSTANTIATE_TEST_SUITE_P.
inline constexpr auto byValue = []<typename T>(const testing::TestParamInfo<T>& info) {
    static std::set<std::string> earlier;
    return nameOfItsOwn(nameOfValue(info.param), info.index, earlier);
};

/// The same by a member of each value, such as its name.
template <auto member>
inline constexpr auto byMember = []<typename T>(const testing::TestParamInfo<T>& info) {
    static std::set<std::string> earlier;
    return nameOfItsOwn(nameOfValue(std::invoke(member, info.param)), info.index, earlier);
};

} // namespace tessaline
