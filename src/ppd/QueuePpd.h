#pragma once

#include <memory>
#include <string>

#include "ppd/PpdFileExt.h"

namespace ComQuorvantVelmar_Plugin {

/// The PPD of a CUPS queue, fetched from cupsd, with the queue's defaults and the user's
/// saved options marked.
struct QueuePpd {
    enum class Status { Fetched, UnknownQueue, Unreachable, Unreadable };

    /// Fetches the PPD of queue from the default server (CUPS_SERVER, else the local
    /// cupsd); the temporary copy cupsd hands out is removed at once.
    static QueuePpd fetch(const std::string& queue);

    Status status = Status::Unreadable;
    /// The opened PPD when status is Fetched, else nullptr.
    std::unique_ptr<PpdFileExt> ppd;
    /// Why the fetch failed, in one line; empty on success.
    std::string message;
};

}  // namespace ComQuorvantVelmar_Plugin
