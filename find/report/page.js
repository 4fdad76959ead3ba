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
        this.groups = [...this.table.tBodies];
        // Prepared once, so that a key press only compares.
        this.entries = this.groups.flatMap(group => [...group.rows].map(row => ({
            row,
            group,
            text: folded([...row.cells].map(textOf).join('\n')),
            state: row.dataset.state,
            finders: [...row.querySelectorAll('.finders span')].map(finder => finder.textContent),
            isShown: !row.hidden, // a page that was saved while it was filtered
        })));
        // Not in the elements' own styles, which the page's policy forbids where a page is saved with them.
        this.heights = new CSSStyleSheet();
        this.groups.forEach((group, number) => {
            this.heights.insertRule(`#${this.table.id} tbody:nth-of-type(${number + 1}) {}`, number);
        });
        document.adoptedStyleSheets.push(this.heights);
        this.headings = [...this.table.tHead.rows[0].cells];
        this.headings.forEach((heading, column) => this.makeSortable(heading, column));
    }

    makeSortable(heading, column) {
        const button = document.createElement('button');
        button.type = 'button';
        button.append(heading.textContent);
        heading.replaceChildren(button);
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
        const keys = this.entries.map(entry => textOf(columnOf(entry.row, column)));
        const places = [...keys.keys()];
        if (order !== 'none') {
            places.sort((a, b) => sign * collator.compare(keys[a], keys[b]));
        }
        this.putInOrder(places.map(place => this.entries[place]));
    }

    putInOrder(entries) {
        const size = Math.ceil(entries.length / this.groups.length);
        this.groups.forEach((group, number) => {
            const own = entries.slice(number * size, (number + 1) * size);
            own.forEach(entry => { entry.group = group; });
            group.append(...own.map(entry => entry.row));
        });
        this.showGroups();
    }

    /** Shows the rows that pass. */
    filter(passes) {
        let shown = 0;
        for (const entry of this.entries) {
            const isShown = passes(entry);
            shown += isShown ? 1 : 0;
            if (isShown !== entry.isShown) {
                entry.isShown = isShown;
                entry.row.hidden = !isShown;
            }
        }
        this.showGroups();
        this.count.textContent = shown === this.entries.length ? '' : `${shown} of ${this.entries.length} shown`;
        this.none.hidden = shown > 0 || this.entries.length === 0;
    }

    /**
     * Tells how high the groups are about, and puts off all but the first that have rows to show until these are seen:
     * a browser would lay out at once all that were near a moment ago, when few rows were shown.
     */
    showGroups() {
        const rowsAtOnce = 100;
        const shown = new Map(this.groups.map(group => [group, 0]));
        for (const entry of this.entries) {
            shown.set(entry.group, shown.get(entry.group) + (entry.isShown ? 1 : 0));
        }
        let before = 0;
        for (const [number, [group, rows]] of [...shown].entries()) {
            this.heights.cssRules[number].style.setProperty('--rows', rows);
            group.classList.toggle('later', rows === 0 || before > rowsAtOnce);
            before += rows;
        }
        const showAll = () => shown.forEach((rows, group) => group.classList.toggle('later', rows === 0));
        cancelAnimationFrame(this.next);
        this.next = requestAnimationFrame(() => { this.next = requestAnimationFrame(showAll); });
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
tools.addEventListener('change', update);
tools.hidden = false;
update(); // what a browser remembers of an earlier visit holds
