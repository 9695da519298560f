#pragma once

#include <QLatin1StringView>

/// The parts of the page that are the same for every dictionary. Light and dark follow the reader's system.
namespace CodebookStyle
{
inline constexpr QLatin1StringView css(R"(
:root{color-scheme:light dark;--ink:#1c2430;--soft:#5a6675;--line:#d5dbe3;--page:#fff;--band:#f3f5f8;--key:#0b5394;--mark:#fff3c4}
@media (prefers-color-scheme:dark){:root{--ink:#e3e8ef;--soft:#9aa7b6;--line:#384250;--page:#14181e;--band:#1d232b;--key:#8fc1f5;--mark:#4a3f14}}
*{box-sizing:border-box}
body{margin:0;font:16px/1.5 system-ui,"Segoe UI",Roboto,"Helvetica Neue",Arial,"DejaVu Sans",sans-serif;color:var(--ink);background:var(--page)}
a{color:var(--key);text-decoration:none}a:hover,a:focus{text-decoration:underline}
.skip{position:absolute;left:-99em}.skip:focus{left:1em;top:1em;background:var(--page);padding:.5em}
.frame{display:grid;grid-template-columns:17rem minmax(0,1fr);max-width:76rem;margin:0 auto}
nav{position:sticky;top:0;align-self:start;max-height:100vh;overflow:auto;padding:1.5rem 1rem 2rem 1.5rem;border-right:1px solid var(--line);font-size:.9rem}
nav h2{font-size:.8rem;text-transform:uppercase;letter-spacing:.06em;color:var(--soft);margin:1.5rem 0 .5rem}
nav ul{list-style:none;margin:0;padding:0}nav ul ul{padding-left:1rem;border-left:1px solid var(--line)}
nav li{margin:.25rem 0}nav .count{color:var(--soft);font-size:.85em}
label{display:block;font-weight:600;margin-bottom:.25rem}
input[type=search]{width:100%;font:inherit;padding:.4rem .6rem;color:inherit;background:var(--band);border:1px solid var(--line);border-radius:.3rem}
#found{min-height:1.5em;color:var(--soft)}
header{grid-column:2;padding:1.5rem 2rem 0}
nav{grid-column:1;grid-row:1/span 2}
main{grid-column:2;padding:0 2rem 4rem}
h1{font-size:1.9rem;line-height:1.2;margin:.2rem 0}.extent{color:var(--soft);margin:0}
section>h2{font-size:1.45rem;line-height:1.3;margin:2rem 0 .5rem;padding-top:1rem;border-top:3px solid var(--key)}
h2 code,h3 code{font-size:.95em}
code,.code{font-family:ui-monospace,"DejaVu Sans Mono",Menlo,Consolas,monospace}
h2 code{color:var(--soft);font-size:.7em;font-weight:400}
article{padding:1rem 0 .5rem;border-top:1px solid var(--line);content-visibility:auto;contain-intrinsic-size:auto 14rem}
h3{font-size:1.05rem;margin:0 0 .5rem}h3 code{color:var(--key);margin-right:.6em}
.role{font-size:.75rem;font-weight:600;color:var(--ink);background:var(--mark);border-radius:.25rem;padding:.1rem .4rem;margin-left:.5em;white-space:nowrap}
dl{display:grid;grid-template-columns:repeat(auto-fill,minmax(11rem,1fr));gap:.4rem 1.2rem;margin:.5rem 0}
dl div{min-width:0}dt{font-size:.78rem;color:var(--soft)}dd{margin:0;overflow-wrap:anywhere}
p.text{white-space:pre-line;max-width:46rem}
.wide{overflow-x:auto}
table{border-collapse:collapse;margin:.6rem 0 1rem;font-size:.92rem}
.overview table{width:100%}
caption{text-align:left;font-size:.78rem;color:var(--soft);padding-bottom:.2rem}
th,td{text-align:left;vertical-align:top;padding:.25rem .9rem .25rem .5rem;border-bottom:1px solid var(--line);unicode-bidi:isolate}
thead th{background:var(--band);font-size:.8rem}tbody th{font-weight:400;white-space:nowrap}
.overview tbody th{white-space:normal;min-width:9rem}.overview td:nth-child(3){min-width:9rem}.overview tbody th,.overview td,.codes td{overflow-wrap:anywhere}
h1,h2,h3{overflow-wrap:anywhere}
td.number,th.number{text-align:right;font-variant-numeric:tabular-nums}
.codes th.number{min-width:4rem}
[hidden]{display:none!important}
@media (max-width:50rem){.frame{display:block}nav{position:static;max-height:none;border-right:0;border-bottom:1px solid var(--line)}header,main{padding:1rem}}
@media print{
:root{color-scheme:light;--ink:#000;--soft:#444;--line:#bbb;--page:#fff;--band:#eee;--key:#000;--mark:#eee}
@page{size:A4;margin:18mm 16mm}
body{font-size:9.5pt}.frame{display:block;max-width:none}.search,.skip{display:none}
nav{position:static;max-height:none;border:0;padding:0;overflow:visible;margin-top:8mm}header,main{padding:0}
dl{grid-template-columns:repeat(auto-fill,minmax(27mm,1fr));gap:1mm 3mm}th,td{padding:.5mm 3mm .5mm 1.5mm}article{padding:2mm 0 0}
section{break-before:page}section>h2{border-top-width:2px}
article{content-visibility:visible;break-inside:avoid-page}h2,h3,caption,thead{break-after:avoid}tr{break-inside:avoid}
thead{display:table-header-group}
[hidden]{display:revert!important}
}
)");

// Without script the search box stays hidden. Texts are gathered when something is typed first.
inline constexpr QLatin1StringView script(R"(
(function(){
var box=document.getElementById('search'),found=document.getElementById('found'),items=null,timer=0;
document.querySelector('.search').hidden=false;
function fold(text){return text.toLowerCase().normalize('NFD').replace(/[\u0300-\u036f]/g,'');}
function gather(){items=Array.from(document.querySelectorAll('article'),function(article){
return{article:article,row:document.getElementById('r'+article.id.slice(1)),text:fold(article.textContent)};});}
function search(){
var words=fold(box.value).split(/\s+/).filter(Boolean),count=0;
if(!items)gather();
items.forEach(function(item){
var shown=words.every(function(word){return item.text.indexOf(word)>=0;});
item.article.hidden=!shown;if(item.row)item.row.hidden=!shown;if(shown)++count;});
document.querySelectorAll('section').forEach(function(section){
section.hidden=words.length>0&&!section.querySelector('article:not([hidden])');});
found.textContent=words.length?found.dataset.text.replace('%1',count):'';}
box.addEventListener('input',function(){clearTimeout(timer);timer=setTimeout(search,120);});
document.addEventListener('keydown',function(event){
if(event.key==='/'&&document.activeElement!==box){event.preventDefault();box.focus();}
if(event.key==='Escape'&&document.activeElement===box){box.value='';search();}});
})();
)");
} // namespace CodebookStyle
