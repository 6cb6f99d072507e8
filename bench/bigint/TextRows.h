// Texts in every radix, and streams.
#ifndef QEL_BENCH_BIGINT_TEXTROWS_H
#define QEL_BENCH_BIGINT_TEXTROWS_H

#include "Rows.h"

#include <ostream>
#include <streambuf>
#include <string>

namespace qel::bench {

/// Keeps what is written since the last `take`.
class Sink : public std::streambuf {
  public:
    std::string const& text() const { return written; }
    void clear() { written.clear(); }

  protected:
    int_type overflow(int_type c) override {
        written += static_cast<char>(c);
        return c;
    }
    std::streamsize xsputn(char const* s, std::streamsize count) override {
        written.append(s, static_cast<std::size_t>(count));
        return count;
    }

  private:
    std::string written;
};

template <typename Library>
void registerStreamRow() {
    auto const sink = std::make_shared<Sink>();
    auto const stream = std::make_shared<std::ostream>(sink.get());
    addRow<Library>({"decimal to a stream", {"operator<<(std::ostream&, LargeInteger const&)"}},
                    allSizes, pairs, [sink, stream](auto& library, auto& x) -> std::string const& {
                        sink->clear();
                        library.write(*stream, x.a);
                        return sink->text();
                    });
}

template <typename Library, int radix>
void registerRadixRows(std::string const& radixName) {
    addRow<Library>({"toString, " + radixName, {"LargeInteger::toString(int)"}}, allSizes, pairs,
                    [](auto& library, auto& x) { return library.textOf(x.a, radix); });
    addRow<Library>(
        {"parseString, " + radixName, {"LargeInteger::parseString(std::string const&, int)"}},
        allSizes, texts<radix>,
        [](auto& library, auto& x) { return library.valueOf(x.text, radix); });
}

}  // namespace qel::bench

#endif
