'use strict';
// The page is whole without this: here it only learns to search, to filter and to sort.

const collator = new Intl.Collator('en', {numeric: true, sensitivity: 'base'});

/** The text as it is searched for: forms and letter case of the same letters are one. */
function folded(text) {
    return text.normalize('NFKC').toLowerCase();
}

/** What a cell says at a glance, without what is folded away in it. */
function textOf(cell) {
    return cell.querySelector('details') ? cell.querySelector('summary').textContent : cell.textContent;
}

/** A table whose rows can be hidden and put into another order. */
class List {
    constructor(id) {
        this.table = document.getElementById(id + '-table');
        this.count = document.getElementById(id + '-count');
        this.none = document.getElementById(id + '-none');
        this.body = this.table.tBodies[0];
        // Prepared once, so that a key press only compares.
        this.rows = [...this.body.rows].map((row, place) => ({
            row,
            place,
            text: folded([...row.cells].map(textOf).join('\n')),
            state: row.dataset.state,
            finders: [...row.querySelectorAll('.finders span')].map(finder => finder.textContent),
            isShown: true,
        }));
        this.headings = [...this.table.tHead.rows[0].cells];
        this.headings.forEach((heading, column) => this.makeSortable(heading, column));
    }

    makeSortable(heading, column) {
        const button = document.createElement('button');
        button.type = 'button';
        button.append(...heading.childNodes);
        heading.append(button);
        heading.setAttribute('aria-sort', 'none');
        button.addEventListener('click', () => this.sort(column));
    }

    /** By the column: upwards, at the next call downwards, then as at first. */
    sort(column) {
        const heading = this.headings[column];
        const next = {none: 'ascending', ascending: 'descending', descending: 'none'};
        const order = next[heading.getAttribute('aria-sort')];
        this.headings.forEach(other => other.setAttribute('aria-sort', 'none'));
        heading.setAttribute('aria-sort', order);
        const sign = order === 'descending' ? -1 : 1;
        const keyOf = entry => textOf(columnOf(entry.row, column));
        const sorted = this.rows.map(entry => ({entry, key: order === 'none' ? '' : keyOf(entry)}));
        sorted.sort((a, b) => sign * collator.compare(a.key, b.key) || a.entry.place - b.entry.place);
        this.body.append(...sorted.map(({entry}) => entry.row));
    }

    /** Shows the rows that pass. */
    filter(passes) {
        let shown = 0;
        for (const entry of this.rows) {
            const isShown = passes(entry);
            shown += isShown ? 1 : 0;
            if (isShown !== entry.isShown) {
                entry.isShown = isShown;
                entry.row.hidden = !isShown;
            }
        }
        this.count.textContent = shown === this.rows.length ? '' : `${shown} of ${this.rows.length} shown`;
        this.none.hidden = shown > 0;
    }
}

/** The cell in that column; one that is as wide as two stands for both. */
function columnOf(row, column) {
    let first = 0;
    for (const cell of row.cells) {
        first += cell.colSpan;
        if (column < first) {
            return cell;
        }
    }
    return row.cells[0];
}

const games = new List('games');
const others = new List('others');
const search = document.getElementById('search');
const finder = document.getElementById('finder');
const tools = document.getElementById('tools');

function update() {
    const words = folded(search.value).split(/\s+/).filter(word => word !== '');
    const state = tools.querySelector('input[name=state]:checked').value;
    const hasWords = entry => words.every(word => entry.text.includes(word));
    games.filter(entry => (state === 'all' || entry.state === state) &&
        (finder.value === '' || entry.finders.includes(finder.value)) && hasWords(entry));
    others.filter(hasWords);
}

tools.addEventListener('input', update);
tools.hidden = false;
update(); // what a browser remembers of an earlier visit holds
