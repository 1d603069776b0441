// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/RunTimeError.h"
#include "tools/copies/SafeFiles.h"

#include <exception>
#include <filesystem>
#include <optional>
#include <string>

namespace zelvia
{

/// Does the work and returns what went wrong, Italian and without a full stop; none when nothing did. What is no
/// std::exception passes.
template <typename Work>
std::optional<std::string> FailureOf(Work&& work)
{
    try {
        work();
        return std::nullopt;
    } catch (const std::filesystem::filesystem_error& error) {
        return FileFailure(error.path1(), error.code().value()).what();
    } catch (const ErroreRunTime& error) {
        return ToUtf8(error.Description());
    } catch (const std::exception& error) {
        return error.what();
    }
}

} // namespace zelvia
