// Small helpers for elements.

export const byId = id => document.getElementById(id);

/** A new element; text from the camera only ever becomes text. */
export function make(tag, properties = {}, ...children) {
  const element = Object.assign(document.createElement(tag), properties);
  element.append(...children);
  return element;
}

/** Gives a select these [value, text] options, without touching it while they are the same. */
export function setOptions(select, options) {
  const wanted = JSON.stringify(options);
  if (select.dataset.options === wanted) return;
  select.dataset.options = wanted;
  const value = select.value;
  select.replaceChildren(...options.map(([value, text]) => make("option", { value }, text)));
  if (value) select.value = value;
}

/** Puts a class on an element for a moment. */
export function mark(element, name, milliseconds) {
  element.classList.add(name);
  clearTimeout(element.markTimer);
  element.markTimer = setTimeout(() => element.classList.remove(name), milliseconds);
}

/** A value that outlives the page, where the browser allows it. */
export const stored = {
  get(name, otherwise) {
    try {
      return localStorage.getItem(name) ?? otherwise;
    } catch {
      return otherwise;
    }
  },
  set(name, value) {
    try {
      localStorage.setItem(name, value);
    } catch {
      // a browser that keeps nothing: the choice holds until the page is left
    }
  },
};

/** Makes the tabs of a tab list work: mouse, arrows, Home and End. */
export function wireTabs(list) {
  const tabs = [...list.querySelectorAll("[role=tab]")];
  const choose = chosen => tabs.forEach(tab => {
    tab.setAttribute("aria-selected", tab === chosen);
    tab.tabIndex = tab === chosen ? 0 : -1;
    byId(tab.getAttribute("aria-controls")).hidden = tab !== chosen;
  });
  const moves = { ArrowLeft: -1, ArrowRight: 1, Home: -Infinity, End: Infinity };
  tabs.forEach((tab, index) => {
    tab.addEventListener("click", () => choose(tab));
    tab.addEventListener("keydown", event => {
      if (!(event.key in moves)) return;
      event.preventDefault();
      const next = tabs[Math.max(0, Math.min(tabs.length - 1, index + moves[event.key]))];
      choose(next);
      next.focus();
    });
  });
}
