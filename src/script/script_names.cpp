#include "script/script_names.h"

#include <utility>

#include "script/identifier.h"
#include "script/script_failure.h"

namespace tavimor {

namespace {

std::string quoted(std::string_view name) { return "'" + shortened(name) + "'"; }

bool isMemberName(std::string_view name) {
  const std::size_t point = name.find('.');
  return point != name.npos && isIdentifier(name.substr(0, point)) && isIdentifier(name.substr(point + 1));
}

void checkNotReserved(std::string_view name) {
  if (isReservedWord(name)) throw ScriptFailure(quoted(name) + " is a reserved word of the script language");
}

void checkName(std::string_view name) {
  if (!isIdentifier(name))
    throw ScriptFailure(
        quoted(name) +
        " cannot name a variable: a name is a letter (A to Z) followed by letters, digits and underscores");
  if (name.size() > kMostNameCharacters)
    throw ScriptFailure("A name has at most " + std::to_string(kMostNameCharacters) + " characters");
  checkNotReserved(name);
}

}  // namespace

void ScriptNames::define(std::string_view name, Symbol symbol) {
  symbols_.insert_or_assign(lowerCase(name), std::move(symbol));
}

const Symbol* ScriptNames::find(std::string_view name) const {
  const auto found = symbols_.find(lowerCase(name));
  return found == symbols_.end() ? nullptr : &found->second;
}

void ScriptNames::reportUnknownMember(std::string_view name) const {
  const std::string_view object = name.substr(0, name.find('.'));
  const std::string_view member = name.substr(object.size() + 1);
  const Symbol* symbol = find(object);
  if (symbol != nullptr && symbol->kind == Symbol::Kind::Object)
    throw ScriptFailure(quoted(object) + " has no member " + quoted(member));
  throw ScriptFailure(quoted(object) + " is not an object");
}

const Symbol& ScriptNames::symbolInExpression(std::string_view name) const {
  const Symbol* symbol = find(name);
  if (symbol == nullptr) {
    if (isMemberName(name)) reportUnknownMember(name);
    checkNotReserved(name);
    throw ScriptFailure("Nothing is known of " + quoted(name) + ": no value has been assigned to it");
  }
  if (symbol->kind == Symbol::Kind::Object) throw ScriptFailure(quoted(name) + " is an object and has no value");
  return *symbol;
}

const Symbol* ScriptNames::assignable(std::string_view name) const {
  const Symbol* symbol = find(name);
  if (symbol == nullptr) {
    if (isMemberName(name)) reportUnknownMember(name);
    checkName(name);
    return nullptr;
  }
  if (symbol->kind == Symbol::Kind::Value) return symbol;
  throw ScriptFailure(quoted(name) + " is " + (symbol->kind == Symbol::Kind::Function ? "a function" : "an object") +
                      " and cannot be assigned to");
}

}  // namespace tavimor
