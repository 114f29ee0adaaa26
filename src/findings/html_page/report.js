// Order, filter and lines of a report page. Without it the page shows everything by section.
'use strict';

(() => {
  const severities = {error: 'Errors', warning: 'Warnings', fyi: 'FYI', remark: 'Remarks'};
  const controls = document.getElementById('controls');
  if (!controls) return;
  const filter = document.getElementById('filter');
  const shown = document.getElementById('shown');
  const longestList = 200;
  const number = (count) => count.toLocaleString('en');

  // The page as it is read: files with parts, parts with lists, lists with findings.

  function readFinding(item) {
    const line = /^Line (\d+)/.exec(item.children[1].textContent);
    return {item, severity: item.className, line: line ? Number(line[1]) : 0, words: null};
  }

  function readList(element) {
    return {element, findings: Array.from(element.children, readFinding)};
  }

  function readPart(element) {
    const lists = Array.from(element.querySelectorAll('ol'), readList);
    return {
      element,
      title: element.querySelector('h3 span').textContent,
      lists,
      findings: lists.flatMap((list) => list.findings),
    };
  }

  function readFile(element) {
    return {
      parts: element.querySelector('.parts'),
      none: element.querySelector('.none'),
      bySection: Array.from(element.querySelectorAll('.part'), readPart),
    };
  }

  // The views: each makes parts of a file's findings anew. Sorting keeps the order of equals.

  const views = {
    section: (file) => file.bySection.map(({title, findings}) => ({title, findings})),
    line: (file) => {
      const findings = file.bySection.flatMap((part) => part.findings);
      return [{title: 'By line', findings: findings.sort((a, b) => a.line - b.line)}];
    },
    severity: (file) => {
      const findings = file.bySection.flatMap((part) => part.findings);
      return Object.entries(severities).map(([severity, title]) => (
        {title, findings: findings.filter((finding) => finding.severity === severity)}));
    },
  };

  function buildList(findings) {
    const element = document.createElement('ol');
    for (const finding of findings) element.append(finding.item);
    return {element, findings};
  }

  function buildPart(part) {
    part.element = document.createElement('section');
    part.element.className = 'part';
    const title = document.createElement('h3');
    const words = document.createElement('span');
    words.textContent = part.title;
    title.append(words, ' ', document.createElement('small'));
    part.lists = [];
    for (let start = 0; start < part.findings.length; start += longestList) {
      part.lists.push(buildList(part.findings.slice(start, start + longestList)));
    }
    part.element.append(title, ...part.lists.map((list) => list.element));
    return part;
  }

  function arrange(view) {
    for (const file of files) {
      file.shownParts = views[view](file).filter((part) => part.findings.length).map(buildPart);
      file.parts.replaceChildren(...file.shownParts.map((part) => part.element));
    }
    show();
  }

  // The filter. What the line under a finding holds is not searched.

  function wordsOf(finding) {
    if (finding.words === null) {
      const [severity, place, body] = finding.item.children;
      const texts = [severity, place, body.children[0], body.children[1]];
      finding.words = texts.map((text) => text.textContent).join(' ').toLowerCase();
    }
    return finding.words;
  }

  function showList(list, isWanted) {
    let count = 0;
    for (const finding of list.findings) {
      const isShown = isWanted(finding);
      if (isShown) ++count;
      if (finding.item.hidden === isShown) finding.item.hidden = !isShown;
    }
    list.element.hidden = count === 0;
    // A long list is laid out when it comes into sight; until then its height is a guess.
    list.element.className = count > longestList / 10 ? 'long' : '';
    list.element.style.containIntrinsicSize = `auto ${count * 5}rem`;
    return count;
  }

  function showPart(part, isWanted) {
    let count = 0;
    for (const list of part.lists) count += showList(list, isWanted);
    const total = part.findings.length;
    part.element.hidden = count === 0;
    part.element.querySelector('small').textContent =
        count === total ? number(total) : `${number(count)} of ${number(total)}`;
    return count;
  }

  function show() {
    const wanted = filter.value.trim().toLowerCase();
    const ticked = new Set(Array.from(
        controls.querySelectorAll('[name=severity]:checked'), (box) => box.value));
    const isWanted = (finding) => ticked.has(finding.severity) &&
        (wanted === '' || wordsOf(finding).includes(wanted));
    let count = 0;
    let total = 0;
    for (const file of files) {
      let countOfFile = 0;
      for (const part of file.shownParts) {
        countOfFile += showPart(part, isWanted);
        total += part.findings.length;
      }
      file.none.hidden = countOfFile > 0 || file.shownParts.length === 0;
      count += countOfFile;
    }
    shown.textContent = `${number(count)} of ${number(total)} findings shown` +
        (wanted === '' ? '.' : `: those with "${filter.value.trim()}".`);
    shown.className = count === total ? 'all' : '';
  }

  // A line is written out with its first finding; the others take it over when they are unfolded.

  function fillLine(details) {
    const line = document.getElementById(details.dataset.line).cloneNode(true);
    line.removeAttribute('id');
    line.querySelector('[aria-current]')?.removeAttribute('aria-current');
    const rows = line.querySelectorAll('tbody tr');
    rows[Number(details.dataset.cell) - 1]?.setAttribute('aria-current', 'true');
    details.lastElementChild.replaceWith(line);
    delete details.dataset.line;
  }

  document.addEventListener('toggle', ({target}) => {
    if (target.open && target.dataset.line) fillLine(target);
  }, true);

  // Lines are printed whether they are unfolded or not. The style does it; where the browser cannot
  // say so in a style, they are unfolded for as long as it prints.

  if (!CSS.supports('selector(::details-content)')) {
    let unfolded = [];
    addEventListener('beforeprint', () => {
      unfolded = Array.from(document.querySelectorAll('li:not([hidden]) details:not([open])'));
      for (const details of unfolded) details.open = true;
    });
    addEventListener('afterprint', () => {
      for (const details of unfolded) details.open = false;
    });
  }

  const files = Array.from(document.querySelectorAll('.file'), readFile);
  for (const file of files) file.shownParts = file.bySection;

  let typing = 0;
  filter.addEventListener('input', () => {
    clearTimeout(typing);
    typing = setTimeout(show, 150);
  });
  controls.addEventListener('change', ({target}) => {
    if (target.name === 'view') arrange(target.value);
    if (target.name === 'severity') show();
  });
  controls.hidden = false;
  show();
})();
