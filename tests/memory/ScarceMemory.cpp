// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "memory/ScarceMemory.h"

#include "toolkit/Events.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <link.h>
#include <new>
#include <thread>

// Where the linker lays the code of this program.
extern "C" char __executable_start;
extern "C" char etext;

namespace zelvia::test
{
namespace
{

struct Range {
    std::uintptr_t first = 0;
    std::uintptr_t behind = 0;

    bool Holds(const void* address) const
    {
        const auto place = reinterpret_cast<std::uintptr_t>(address);
        return place >= first && place < behind;
    }
};

/// Texts ask for their memory from within the standard library.
Range standardLibrary;
std::thread::id watched;
int left = 0; ///< Requests until the one that is refused; 0 while none is.

int FindStandardLibrary(dl_phdr_info* object, std::size_t /*size*/, void* /*data*/)
{
    if (std::strstr(object->dlpi_name, "libstdc++") == nullptr) {
        return 0;
    }
    for (int i = 0; i < object->dlpi_phnum; ++i) {
        const auto& part = object->dlpi_phdr[i];
        if (part.p_type == PT_LOAD && (part.p_flags & PF_X) != 0) {
            standardLibrary = {object->dlpi_addr + part.p_vaddr, object->dlpi_addr + part.p_vaddr + part.p_memsz};
        }
    }
    return 1;
}

bool Refuses(const void* caller)
{
    static const Range program{reinterpret_cast<std::uintptr_t>(&__executable_start),
                               reinterpret_cast<std::uintptr_t>(&etext)};
    return left > 0 && std::this_thread::get_id() == watched && Routine::Running() &&
           (program.Holds(caller) || standardLibrary.Holds(caller)) && --left == 0;
}

void* Granted(std::size_t size, const void* caller)
{
    return Refuses(caller) ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* GrantedOrThrown(std::size_t size, const void* caller)
{
    if (void* memory = Granted(size, caller)) {
        return memory;
    }
    throw std::bad_alloc();
}

} // namespace

ScarceMemory::ScarceMemory(int nth)
{
    dl_iterate_phdr(FindStandardLibrary, nullptr);
    watched = std::this_thread::get_id();
    left = nth;
}

ScarceMemory::~ScarceMemory()
{
    left = 0;
}

bool ScarceMemory::Struck() const
{
    return left == 0;
}

} // namespace zelvia::test

void* operator new(std::size_t size)
{
    return zelvia::test::GrantedOrThrown(size, __builtin_return_address(0));
}

void* operator new[](std::size_t size)
{
    return zelvia::test::GrantedOrThrown(size, __builtin_return_address(0));
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return zelvia::test::Granted(size, __builtin_return_address(0));
}

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return zelvia::test::Granted(size, __builtin_return_address(0));
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept
{
    std::free(memory);
}
