// The open pages and the rows of the top one; a click on them presses the keys that lead there.

import { byId, make, setOptions } from "./dom.js";
import { request } from "./camera.js";
import { trouble } from "./message.js";

const press = (...keys) => request("POST", "keys", { keys });
const placeOf = page => page.items.findIndex(({ selected }) => selected);

// Key by key, as the cursor passes over rows that can't be chosen. What has the cursor already gets the key OK.
async function walkTo(page, target) {
  const start = placeOf(page);
  if (start === target) return press("home");
  if (page.items[start]?.editing) await press("home");
  const [back, on] = page.layout.startsWith("vertical") ? ["up", "down"] : ["left", "right"];
  for (let at = start; start < target ? at < target : at > target;) {
    await press(start < target ? on : back);
    const top = (await request("GET", "state")).pages.at(-1);
    const next = top?.name === page.name ? placeOf(top) : at;
    if (start < target ? next <= at : next >= at) return; // at an end, or somewhere else
    at = next;
  }
}

function onClick(element, act) {
  element.addEventListener("click", () => act().catch(error => trouble(error, byId("items").parentElement)));
  return element;
}

function rowOf(page, { label, value, selected, editing }, index) {
  const shown = make("span", {}, value);
  if (editing) shown.append(make("em", {}, "editing"));
  const row = make("li", {}, make("span", {}, label), shown);
  if (selected) row.ariaCurrent = "true";
  return onClick(row, () => walkTo(page, index));
}

// A page below others is a button that goes back to it.
function crumbOf({ name, title }, index, pages) {
  const above = pages.length - 1 - index;
  const text = title || name;
  if (!above) return make("li", { title: name, ariaCurrent: "page" }, text);
  return make("li", { title: name }, onClick(make("button", {}, text), () => press(...Array(above).fill("return"))));
}

/** Shows pages and rows of a state, in the language with this code. */
export function showMenu({ open, menu, pages, all_pages: names }, code) {
  const items = byId("items");
  const top = pages.at(-1);
  byId("pages").lang = items.lang = code;
  byId("pages").replaceChildren(...pages.map(crumbOf));
  setOptions(byId("page"), [["", "no page"], ...names.map(name => [name, name])]);
  byId("page").value = top?.name ?? "";
  items.replaceChildren(...(top?.items ?? []).map((item, index) => rowOf(top, item, index)));
  items.hidden = !top;
  byId("menu-note").textContent = menu === false ? "The menu could not start, see the log. Keys do nothing."
    : open ? top?.message ?? "" : "The menu is closed. Menu, or the key M, opens it.";
  const chosen = items.querySelector("[aria-current]");
  if (chosen) items.scrollTop = chosen.offsetTop - (items.clientHeight - chosen.offsetHeight) / 2;
}
