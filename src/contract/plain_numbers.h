#pragma once

namespace zel {

/// While it lives, this thread writes numbers with a decimal point, whatever the locale of the process is.
class PlainNumbers {
public:
    PlainNumbers();
    ~PlainNumbers();
    PlainNumbers(const PlainNumbers&) = delete;
    PlainNumbers& operator=(const PlainNumbers&) = delete;

private:
    void* m_former;
};

}  // namespace zel
