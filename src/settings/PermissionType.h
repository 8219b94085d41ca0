#pragma once

namespace tessaline {

/// A system permission: accessibility for the global shortcuts and the scroll event tap, automation
/// for conversations with Apple Notes.
enum class PermissionType { accessibility, automation };

} // namespace tessaline
