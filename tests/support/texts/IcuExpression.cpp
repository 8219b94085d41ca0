#include "support/texts/IcuExpression.h"

#include <QtGlobal>

namespace tessaline {

namespace {

void require(UErrorCode status, const char* operation) {
    if (U_FAILURE(status)) qFatal("ICU: %s failed: %s", operation, u_errorName(status));
}

const UChar* unitsOf(QStringView text) {
    return text.isEmpty() ? u"" : text.utf16();
}

int32_t lengthOf(QStringView text) {
    return static_cast<int32_t>(text.size());
}

void setText(URegularExpression* expression, QStringView text) {
    UErrorCode status = U_ZERO_ERROR;
    uregex_setText(expression, unitsOf(text), lengthOf(text), &status);
    require(status, "uregex_setText");
}

IcuExpression::Match currentMatch(URegularExpression* expression) {
    UErrorCode status = U_ZERO_ERROR;
    IcuExpression::Match match;
    match.start = uregex_start(expression, 0, &status);
    match.end = uregex_end(expression, 0, &status);
    match.groupStart = match.groupEnd = -1;
    const int32_t groups = uregex_groupCount(expression, &status);
    for (int32_t group = 1; group <= groups && match.groupStart < 0; ++group) {
        match.groupStart = uregex_start(expression, group, &status);
        match.groupEnd = uregex_end(expression, group, &status);
    }
    require(status, "reading a match");
    return match;
}

} // namespace

IcuExpression::IcuExpression(QStringView pattern) {
    UErrorCode status = U_ZERO_ERROR;
    expression.reset(uregex_open(unitsOf(pattern), lengthOf(pattern), 0, nullptr, &status));
    require(status, "uregex_open");
    uregex_setStackLimit(expression.get(), 0, &status);
    uregex_setTimeLimit(expression.get(), 0, &status);
    require(status, "lifting the limits");
}

std::vector<IcuExpression::Match> IcuExpression::matches(QStringView text) const {
    setText(expression.get(), text);
    std::vector<Match> found;
    UErrorCode status = U_ZERO_ERROR;
    while (uregex_findNext(expression.get(), &status) != 0) {
        found.push_back(currentMatch(expression.get()));
    }
    require(status, "uregex_findNext");
    return found;
}

QString IcuExpression::replaceAll(QStringView text, QStringView replacement) const {
    setText(expression.get(), text);
    std::vector<UChar> result(text.size() + 1); // no replacement of ours is longer than its match
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        uregex_replaceAll(expression.get(), unitsOf(replacement), lengthOf(replacement),
                          result.data(), static_cast<int32_t>(result.size()), &status);
    require(status, "uregex_replaceAll");
    return QStringView(result.data(), length).toString();
}

} // namespace tessaline
