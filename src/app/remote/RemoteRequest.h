#pragma once

#include "cli/ControlRequest.h"
#include "reading/PrompterStatus.h"

#include <QString>

#include <variant>

namespace tessaline {

/// Bring the program to the front.
struct ShowRequest {
    bool operator==(const ShowRequest&) const = default;
};

/// The same, with the text of a file.
struct OpenRequest {
    QString path;        ///< from the root
    bool follow = false; ///< show it again whenever it changes
    bool isCopy = false; ///< made to hand a text over: no file of the user's

    bool operator==(const OpenRequest&) const = default;
};

/// What a later command line asks the running program for.
using RemoteRequest = std::variant<ShowRequest, OpenRequest, ControlRequest>;

/// Why a request was not carried out.
struct Refusal {
    QString reason; ///< one line, without a full stop

    bool operator==(const Refusal&) const = default;
};

/// What comes of a request: the prompter as it is afterwards, or why nothing was done.
using RemoteAnswer = std::variant<PrompterStatus, Refusal>;

} // namespace tessaline
