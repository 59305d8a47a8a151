#include "platform/utf8.h"

#include "tests/support/readable.h"

using namespace tessaline;

TEST_CASE("Texts become UTF-8 and come back") {
    using namespace std::literals;
    const std::pair<std::wstring_view, std::string_view> rows[] = {
        {L"", ""},
        {L"a\0~\x7F"sv, "a\0~\x7F"sv},
        {L"\u0080", "\xC2\x80"},
        {L"x\u07FF\u0800\uFFFF\U00010000\U0010FFFF",
         "x\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"}};
    for (const auto& [text, utf8] : rows) {
        SecretBytes bytes{'>'};
        AppendUtf8(bytes, text);
        CHECK(std::string(bytes.begin(), bytes.end()) == ">" + std::string(utf8));
        CHECK(FromUtf8(ByteView(bytes).subspan(1)) == text);
    }
}

TEST_CASE("What is ill-formed is replaced") {
    SecretBytes bytes;
    AppendUtf8(bytes, L"\xDC00-\xD800");
    CHECK(std::string(bytes.begin(), bytes.end()) == "\xEF\xBF\xBD-\xEF\xBF\xBD");
    CHECK(FromUtf8(Bytes{'a', 0x80, 'b', 0xC3}) == L"a\uFFFDb\uFFFD");
}
