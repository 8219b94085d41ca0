#include "remote/page/Secret.h"

#include <gtest/gtest.h>

namespace tessaline {

TEST(Secret, Has128BitsInCharactersOfAddresses) {
    qsizetype asked = 0;
    const QByteArray secret = newSecret([&asked](qsizetype count) {
        asked = count;
        return QByteArray(count, '\xff');
    });
    EXPECT_EQ(asked, 16);
    EXPECT_EQ(secret, "_____________________w");
}

TEST(Secret, IsAnotherEachTime) {
    const QByteArray first = newSecret(systemRandomBytes);
    EXPECT_EQ(first.size(), 22);
    EXPECT_NE(newSecret(systemRandomBytes), first);
}

TEST(Secret, IsTheSameOnlyWhole) {
    EXPECT_TRUE(isSameSecret("secret", "secret"));
    EXPECT_FALSE(isSameSecret("Secret", "secret"));
    EXPECT_FALSE(isSameSecret("secreT", "secret"));
    EXPECT_FALSE(isSameSecret("secre", "secret"));
    EXPECT_FALSE(isSameSecret("secrets", "secret"));
    EXPECT_FALSE(isSameSecret("", "secret"));
    EXPECT_FALSE(isSameSecret("", "")) << "nobody has no secret";
}

} // namespace tessaline
