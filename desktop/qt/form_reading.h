// What a screen reader finds on a form.
#pragma once

namespace desktop::qt {

/// From now on a screen reader finds each form by its name, and on it the texts that are painted there and the
/// controls in front of them. To be said once or more often, before a reader asks.
void DescribeToReaders();

}  // namespace desktop::qt
