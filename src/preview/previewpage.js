// SPDX-License-Identifier: GPL-3.0-or-later
'use strict';
const all = selector => [...document.querySelectorAll(selector)];
const field = document.getElementById('search');
const found = document.getElementById('found');
const nothing = document.getElementById('nothing');
const open = document.getElementById('open');
const sections = all('section').map(element => ({
  element, group: element.dataset.group, items: [...element.querySelectorAll('details')].map(item => ({
    element: item, verdict: item.dataset.verdict, text: null }))
}));
const total = all('details').length;
const whole = found?.textContent;
const chosen = { verdict: '', group: '' };

// Read at the first search only: a page may have thousands of items.
const textOf = item => item.text ??= item.element.textContent.toLowerCase();

function show() {
  const words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
  let count = 0;
  for (const section of sections) {
    let any = false;
    for (const item of section.items) {
      const fits = (!chosen.group || chosen.group === section.group)
                   && (!chosen.verdict || chosen.verdict === item.verdict)
                   && words.every(word => textOf(item).includes(word));
      item.element.hidden = !fits;
      any ||= fits;
      count += fits;
    }
    section.element.hidden = !any;
  }
  found.textContent = count === total ? whole : count + ' of ' + total + ' items';
  nothing.hidden = count > 0;
  for (const button of all('button[data-filter]'))
    button.setAttribute('aria-pressed', String(chosen[button.dataset.filter] === button.dataset.value));
}

for (const button of all('button[data-filter]')) {
  button.addEventListener('click', () => {
    const kind = button.dataset.filter;
    chosen[kind] = chosen[kind] === button.dataset.value ? '' : button.dataset.value;
    show();
  });
}
field.addEventListener('input', show);
document.getElementById('again').addEventListener('click', () => {
  field.value = chosen.verdict = chosen.group = '';
  show();
  field.focus();
});

const shown = () => all('details:not([hidden])');
open.addEventListener('click', () => {
  const opening = shown().some(item => !item.open);
  for (const item of shown())
    item.open = opening;
  open.textContent = opening ? 'Close all' : 'Open all';
});

if (total)
  show();
