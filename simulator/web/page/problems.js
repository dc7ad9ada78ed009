// What is wrong with the camera's resources: how much, and below it each finding by its file.

import { byId, make } from "./dom.js";

let shown = "[]";

const count = (number, word) => `${number} ${word}${number === 1 ? "" : "s"}`;

function titleOf(problems, files) {
  const parts = ["error", "warning"].map(word => [problems.filter(({ severity }) => severity === word).length, word]);
  return `${parts.filter(([number]) => number).map(part => count(...part)).join(", ")} in ${count(files, "file")}`;
}

function rowOf({ line, column, severity, rule, reason }) {
  const place = make("b", {}, line ? [line, column].filter(Boolean).join(":") : "");
  return make("li", { className: severity }, place, make("em", {}, severity),
    make("span", {}, `${reason} `, make("small", {}, `[${rule}]`))); // the name by which it can be allowed
}

/** Shows the findings as they are told, all of them; nothing at all when there are none. */
export function showProblems(problems) {
  const now = JSON.stringify(problems);
  if (now === shown) return; // what has the focus, or is read, stays
  shown = now;
  const files = new Map();
  for (const problem of problems) files.set(problem.file, [...(files.get(problem.file) ?? []), problem]);
  const title = problems.length ? titleOf(problems, files.size) : "";
  byId("problems").hidden = !problems.length;
  byId("problems").classList.toggle("mild", problems.every(({ severity }) => severity === "warning"));
  byId("problems-count").textContent = title;
  byId("problems-spoken").textContent = title || "All files are in order again";
  byId("problems-list").replaceChildren(...[...files].map(([file, found]) =>
    make("section", {}, make("h3", {}, file), make("ol", {}, ...found.map(rowOf)))));
}

/** Escape within the box closes it, as it is no key for the camera there. */
export function wireProblems() {
  const box = byId("problems");
  box.addEventListener("keydown", event => {
    if (event.key !== "Escape" || !box.open) return;
    event.preventDefault();
    box.open = false;
    byId("problems-count").focus();
  });
}
