// Reads whatever bytes the fuzzer makes up as a list of recent documents and as the state that is kept of one; a state
// that could be read must be written and read again without loss.

#include <cstdint>
#include <cstdlib>

#include "linux/recent/ListedDocuments.h"
#include "linux/recent/RecentState.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace dayvane::recent;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  DocumentsOf(ParseRecentList(bytes).entries, "/home/ana/.local/share");
  const StateReading first = ReadState(bytes);
  const StateReading second = ReadState(WriteState(first.state));
  if (second.isDamaged || second.state.documents != first.state.documents) std::abort();
  return 0;
}
