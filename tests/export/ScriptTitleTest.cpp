#include "export/ScriptTitle.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Titled {
    QString content;
    QString title;
};

class ScriptTitle : public testing::TestWithParam<Titled> {};

TEST_P(ScriptTitle, IsTheFirstHeadingOrTheProgram) {
    EXPECT_EQ(scriptTitle(GetParam().content), GetParam().title);
}

INSTANTIATE_TEST_SUITE_P(
    Contents, ScriptTitle,
    testing::Values(Titled{u""_s, u"Tessaline"_s}, Titled{u"text\n- item"_s, u"Tessaline"_s},
                    Titled{u"intro\n\n### Third *first*\n# Later"_s, u"Third first"_s},
                    Titled{u"#NoHeading\n# Yes\r\n"_s, u"Yes"_s},
                    Titled{u"```\n# comment\n```\n# After"_s, u"After"_s},
                    Titled{u"```\n# never closed"_s, u"Tessaline"_s},
                    Titled{u"#   spaced\tout  "_s, u"spaced out"_s}),
    byMember<&Titled::content>);

} // namespace
} // namespace tessaline
