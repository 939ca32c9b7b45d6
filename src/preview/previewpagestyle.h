// SPDX-License-Identifier: GPL-3.0-or-later
// The style and the script of a preview's page.

#pragma once

#include <QLatin1StringView>

inline constexpr auto previewPageStyle = QLatin1StringView(R"(
header p { max-width: 46rem; }
header p + p { margin-top: .6rem; }
.pc { color: var(--text); font-size: 1.05rem; margin-bottom: 1rem; }
button, input { background: var(--page); border: 1px solid var(--edge); border-radius: 8px; color: var(--text);
                font: inherit; }
button { cursor: pointer; }
:focus-visible { outline: 3px solid var(--focus); outline-offset: 2px; }
[hidden] { display: none !important; }
.counts { display: grid; gap: .8rem; grid-template-columns: repeat(auto-fit, minmax(13.5rem, 1fr)); list-style: none;
          margin: 1.8rem 0 1rem; padding: 0; }
.counts button { height: 100%; padding: .9rem 1rem; text-align: left; width: 100%; }
.counts b { display: block; font-size: 2rem; font-variant-numeric: tabular-nums; font-weight: 650; line-height: 1.15; }
.counts small { color: var(--faint); display: block; font-size: .85rem; line-height: 1.4; margin-top: .3rem; }
.exactly { --verdict: var(--new); }
.otherwise, .unasked { --verdict: var(--warn); }
.not-at-all { --verdict: var(--gone); }
.counts b, .badge { color: var(--verdict); }
.counts button { border-top: 4px solid var(--verdict); }
button[aria-pressed=true] { background: var(--head); border-color: var(--text); }
.counts button[aria-pressed=true] { border-top-color: var(--verdict); box-shadow: inset 0 0 0 1px var(--text); }
.find { background: var(--page); padding: .8rem 0; position: sticky; top: 0; z-index: 1; }
.find label { display: block; font-weight: 600; margin-bottom: .3rem; }
#search { box-sizing: border-box; padding: .6rem .8rem; width: 100%; }
#search::placeholder { color: var(--faint); opacity: 1; }
.groups { display: flex; flex-wrap: wrap; gap: .4rem; margin: .6rem 0 0; }
.groups button { border-radius: 2rem; font-size: .9rem; padding: .2rem .8rem; }
.state { align-items: baseline; display: flex; gap: 1rem; justify-content: space-between; margin-top: .6rem; }
.state button { font-size: .9rem; padding: .2rem .8rem; }
.nothing { border: 1px dashed var(--edge); border-radius: 8px; margin: 2rem 0; padding: 2rem; text-align: center; }
section > p { max-width: 46rem; }
h2 .none { font-weight: normal; }
.row { column-gap: 1.2rem; display: grid; grid-template-columns: minmax(0, 1fr) 11rem 11rem 11rem 9.5rem; }
.columns { border-bottom: 2px solid var(--line); color: var(--faint); font-size: .85rem; font-weight: 600;
           margin-top: .8rem; padding: 0 .4rem .3rem 1.4rem; }
details { border-bottom: 1px solid var(--line); }
summary { cursor: pointer; list-style: none; padding: .55rem .4rem .55rem 1.4rem; position: relative; }
summary::-webkit-details-marker { display: none; }
summary::before { color: var(--faint); content: "\25B8"; left: .3rem; position: absolute; top: .55rem; }
details[open] > summary::before { content: "\25BE"; }
summary:hover { background: var(--head); }
summary span { overflow-wrap: anywhere; }
.title b { display: block; font-weight: 600; }
.title small { color: var(--faint); display: block; font-size: .85rem; line-height: 1.4; }
details:not([open]) .about { display: -webkit-box; overflow: hidden; -webkit-box-orient: vertical;
                             -webkit-line-clamp: 2; }
.side i { clip-path: inset(50%); font-style: normal; height: 1px; overflow: hidden; position: absolute;
          white-space: nowrap; width: 1px; }
.badge { font-weight: 600; }
.body { padding: 0 .4rem 1rem 1.4rem; }
.why { border-left: 3px solid var(--verdict); color: var(--text); margin: 0 0 .8rem; max-width: 46rem;
       padding: .1rem 0 .1rem .8rem; }
td:first-child, td.badge { font-family: inherit; font-size: .9rem; }
td code { color: var(--faint); display: block; font-family: ui-monospace, monospace; font-size: 12px; }
table { table-layout: fixed; }
th:first-child { width: 34%; }
/* Of thousands of items those out of sight cost little. */
@media screen { details { content-visibility: auto; contain-intrinsic-size: auto 4.5rem; } }
@media (max-width: 62rem) {
  .columns { display: none; }
  .row { grid-template-columns: repeat(3, minmax(0, 1fr)); row-gap: .35rem; }
  .title { grid-column: 1 / -1; }
  .row .badge { grid-column: 1 / -1; }
  .side i { clip-path: none; color: var(--faint); display: block; font-size: .8rem; height: auto; position: static;
            white-space: normal; width: auto; }
}
@media (max-width: 44rem) {
  body { margin: 1rem auto; }
  .find { position: static; }
  .row { column-gap: .6rem; }
  .body table, .body tbody, .body tr, .body td { display: block; }
  .body thead { display: none; }
  .body tr { border-bottom: 1px solid var(--line); padding: .4rem 0; }
  .body td { border: 0; padding: .15rem 0; }
  .body td[data-label]::before { color: var(--faint); content: attr(data-label) ": "; font-family: system-ui, sans-serif; }
}
@media print {
  @page { margin: 15mm; }
  body { font-size: 9.5pt; line-height: 1.35; margin: 0; max-width: none; padding: 0; }
  .pc { font-size: 10.5pt; }
  .find, .nothing, summary::before { display: none; }
  .counts { grid-template-columns: repeat(4, 1fr); }
  .counts button { break-inside: avoid; padding: .5rem .6rem; }
  .counts b { font-size: 1.5rem; }
  details[hidden] { display: block !important; }
  section[hidden] { display: block !important; }
  h2, .columns, section > p { break-after: avoid; }
  summary, tr { break-inside: avoid; }
  .columns { display: grid; padding-left: 0; }
  .row { column-gap: .8rem; grid-template-columns: minmax(0, 1fr) 6.5rem 6.5rem 6.5rem 6rem; }
  .title, .row .badge { grid-column: auto; }
  .side i { clip-path: inset(50%); height: 1px; overflow: hidden; position: absolute; width: 1px; }
  summary, .body { padding-left: 0; padding-right: 0; }
  summary { padding-bottom: .15rem; padding-top: .3rem; }
  .body { padding-bottom: .3rem; }
  .body thead { display: none; } /* the columns are those of the section's head */
  .title small { font-size: 8pt; }
  .why { font-size: 8.5pt; margin-bottom: .3rem; }
  td { border: 0; font-size: 8pt; padding: .08rem .4rem .08rem 0; }
  td:first-child, td.badge { font-size: 8pt; font-weight: normal; }
  td code { font-size: 7pt; }
  td:first-child { width: 40%; }
}
)");

inline constexpr auto previewPageScript = QLatin1StringView(R"(
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
  found.textContent = count === total ? total + ' items' : count + ' of ' + total + ' items';
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

let closed = [];
addEventListener('beforeprint', () => {
  closed = all('details:not([open])');
  for (const item of closed)
    item.open = true;
});
addEventListener('afterprint', () => {
  for (const item of closed)
    item.open = false;
});
if (total)
  show();
)");
