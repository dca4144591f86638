# Writes the bytes of the file BYTES as the C++ file SOURCE, which defines zel::embeddedMessages().
file(READ "${BYTES}" hex HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
string(REGEX REPLACE "((0x[0-9a-f][0-9a-f],){32})" "\\1\n" bytes "${bytes}")
file(WRITE "${SOURCE}" "#include \"platform/messages/embedded_messages.h\"

namespace {
constexpr unsigned char bytes[] = {
${bytes}
};
}  // namespace

std::span<const unsigned char> zel::embeddedMessages()
{
    return bytes;
}
")
