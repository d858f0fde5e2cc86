// Whatever is done to documents, they are what a plain model of them is. The bytes are the choices of what is done.

#include "RandomOperations.h"
#include "Target.h"

using namespace dxmd_fuzz;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Choices choices(data, size);
  dxmd_test::RandomOperations operations([&](std::size_t limit) { return choices(limit); });
  while (!choices.isEmpty()) {
    operations.step();
    operations.check();
  }
  operations.checkReadBack();
  return 0;
}
