// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/LateParts.h"

#include "core/RunTimeError.h"

#include <cstdio>
#include <dlfcn.h>
#include <memory>
#include <string>
#include <sys/mman.h>

namespace zelvia
{
namespace
{

std::span<const std::byte>& Image()
{
    static std::span<const std::byte> image;
    return image;
}

[[noreturn]] void Missing()
{
    throw ErroreRunTime(Errore::FileNonTrovato);
}

const LateParts* LoadFrom(const char* path)
{
    // The windows and threads of the module's libraries may last to the very end: it is never unloaded.
    void* const module = dlopen(path, RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE);
    const auto entry = module != nullptr ? reinterpret_cast<LateEntry>(dlsym(module, kLateEntry)) : nullptr;
    if (entry == nullptr) {
        Missing();
    }
    return entry();
}

/// The loader takes nothing but files, so the bytes go into one that is in memory alone.
const LateParts* LoadImage(std::span<const std::byte> image)
{
    const int memory = memfd_create("zelvia-late", MFD_CLOEXEC);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(memory < 0 ? nullptr : fdopen(memory, "wb"),
                                                               &std::fclose);
    if (file == nullptr || std::fwrite(image.data(), 1, image.size(), file.get()) != image.size() ||
        std::fflush(file.get()) != 0) {
        Missing();
    }
    return LoadFrom(("/proc/self/fd/" + std::to_string(memory)).c_str());
}

} // namespace

const LateParts& Late()
{
    static const LateParts* const parts = Image().empty() ? LoadFrom("libzelvia-late.so") : LoadImage(Image());
    return *parts;
}

void SetLateImage(std::span<const std::byte> image)
{
    Image() = image;
}

} // namespace zelvia
