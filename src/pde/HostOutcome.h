#pragma once

#include <string>

namespace ComQuorvantVelmar_Plugin {

/// What a host answers when it prints a job or saves the settings as the queue's defaults.
struct HostOutcome {
    enum class Status {
        Done,         // printed or saved
        NoQueue,      // the host has no queue to print to or save for
        InputError,   // an unknown queue, an unreadable file to print
        Unreachable,  // cupsd could not be reached
        Failed,       // cupsd refused the job, the saved options could not be written
    };

    Status status = Status::Failed;
    /// The id of the submitted job; 0 unless a job was printed.
    int jobId = 0;
    /// One line naming what went wrong; empty on success.
    std::string message;

    static HostOutcome done(int jobId = 0) { return {Status::Done, jobId, {}}; }
    static HostOutcome failure(Status status, std::string message) {
        return {status, 0, std::move(message)};
    }
};

}  // namespace ComQuorvantVelmar_Plugin
