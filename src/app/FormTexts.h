#pragma once

namespace phial
{

class DesignedForm;

/// Puts a form's texts in the language in force, and what screen readers are told. The first call gathers the
/// design's texts, so it comes before any control shows what is no text of the design.
void translateForm(DesignedForm& form);

} // namespace phial
