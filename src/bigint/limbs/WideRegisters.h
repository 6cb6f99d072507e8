// What only the system knows of the processor.
#pragma once

namespace qel::limbs {

/// True when the system keeps the registers of 512 bits for each thread. Only to be asked on
/// processors that have them.
[[nodiscard]] bool savesWideRegisters() noexcept;

}  // namespace qel::limbs
