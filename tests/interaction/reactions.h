// Looking at what the add-in does about one event: the host calls that it makes, and ways to raise events and
// selections that a person at the screen cannot bring about.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/model/design.h"
#include "host/runtime/session.h"

namespace tests {

using Lines = std::vector<std::string>;

inline constexpr const char* applyButton = "idBtnApply";
inline constexpr const char* removeButton = "idRemoveAssignAppearance";
/// A colour of the fixture's library.
inline constexpr const char* red = "RAL 3000 Flame red";

/// The host calls that an action causes, one a line, each indented by two blanks for every call that it lies within.
Lines traceOf(headless::Session& session, const std::function<void()>& action);

/// Of a trace: the calls that the add-in itself made while it handled the first change of that input, each with its
/// answer. Raises std::out_of_range when there was no such event.
Lines reactionTo(const std::string& inputId, const Lines& trace);

/// Of a trace: the calls that gave an entity a material or an appearance, in order, without their answers. Such as
/// "BRepBody(Base).material=(Material(Steel 37))"; "none" stands for no appearance.
Lines editsIn(const Lines& trace);

/// The lines that contain the text.
Lines containing(const std::string& text, const Lines& lines);

/// Edits, as editsIn gives them. An occurrence, a body and its faces are called by full path and "+", such as
/// "Bolt:2+Head"; all faces of a body have one name.
std::string materialSet(const std::string& entity, const std::string& material);
std::string lookSet(const std::string& entity, const std::string& appearance);
std::string lookCleared(const std::string& entity);

/// Reports a change of the input to the add-in, whether or not a person could change it now.
void raiseChangeOf(headless::Session& session, const std::string& inputId);

/// Picks a component. No filter of the dialog lets one through, so the filters are taken away first.
void pickComponent(headless::Session& session, headless::model::Component& component);

/// Picks a thing that is neither component nor occurrence, body or face. No filter of the dialog lets one through
/// either.
void pickAnotherKind(headless::Session& session);

/// Closes the other group, so that Apply assigns appearances or materials only.
void assignAppearancesOnly(headless::Session& session);
void assignMaterialsOnly(headless::Session& session);

/// Changes the filter row and picks all of these.
void pickAll(headless::Session& session, const std::string& filter, const std::vector<std::string>& paths);

/// All that a person sees of the dialog, one input a line.
std::string screenText(const headless::DialogView& dialog);

}  // namespace tests
