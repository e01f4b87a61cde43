#include "tests/conformance/widgets/headless_bench.hpp"
#ifdef KOVA_QT_BENCH
#include "tests/conformance/widgets/qt/qt_bench.hpp"
#endif

namespace kova::conformance {

const std::vector<BenchKind>& Benches()
{
    static const std::vector<BenchKind> benches = {
        {"Headless", MakeHeadlessBench},
#ifdef KOVA_QT_BENCH
        {"Qt", MakeQtBench},
#endif
    };
    return benches;
}

} // namespace kova::conformance
