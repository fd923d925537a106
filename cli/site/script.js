"use strict";

// Searches and filters the list of packages. The page is whole without it.
(() => {
  const form = document.querySelector(".filters");
  const search = document.getElementById("search");
  const count = document.querySelector(".result-count");
  const facets = [...form.querySelectorAll("select")];

  const packages = [...document.querySelectorAll(".card")].map((card) => ({
    card,
    text: (card.textContent + " " + card.dataset.search).toLocaleLowerCase(),
    values: facets.map(({ dataset }) =>
      new Set([...card.querySelectorAll(`[data-facet="${dataset.filter}"] li`)].map((item) => item.textContent))),
  }));

  const show = () => {
    const words = search.value.toLocaleLowerCase().split(/\s+/).filter(Boolean);
    let shown = 0;
    for (const { card, text, values } of packages) {
      const fits = words.every((word) => text.includes(word)) &&
        facets.every(({ value }, i) => value === "" || values[i].has(value));
      card.hidden = !fits;
      shown += fits ? 1 : 0;
    }
    count.textContent = `${shown} of ${packages.length} packages`;
  };

  for (const event of ["input", "change"])
    form.addEventListener(event, show);
  form.addEventListener("submit", (event) => event.preventDefault());
  // The fields are empty only after the event.
  form.addEventListener("reset", () => setTimeout(show));
  form.hidden = false;
  show(); // browsers keep what was in the fields
})();
