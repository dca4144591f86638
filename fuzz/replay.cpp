// Stands in for libFuzzer where a build has none: hands every file of the folders on the command line to the target once.

#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** arguments)
{
    try {
        int inputs = 0;
        for (int i = 1; i < count; ++i) {
            if (arguments[i][0] == '-')
                continue;  // an option of libFuzzer
            for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
                std::ifstream file(entry.path(), std::ios::binary);
                const std::string bytes{std::istreambuf_iterator<char>(file), {}};
                std::cout << entry.path().filename().string() << ", " << bytes.size() << " bytes" << std::endl;
                (void)LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
                ++inputs;
            }
        }
        std::cout << inputs << " inputs replayed\n";
        return inputs > 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
