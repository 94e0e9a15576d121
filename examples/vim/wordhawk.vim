" Check spelling with Wordhawk: source this from your vimrc.
"
"   :Wordhawk           unknown words of the current file, with suggestions, as quickfix list
"   :WordhawkAdd        adds the word under the cursor to your own dictionary

function! s:Check() abort
  update
  let l:lines = systemlist('wordhawk-cli check --exit-zero ' . shellescape(expand('%:p')))
  if v:shell_error
    echohl ErrorMsg | echo join(l:lines, "\n") | echohl None
    return
  endif
  call setqflist([], ' ', {'title': 'Wordhawk', 'lines': l:lines, 'efm': '%f:%l:%c: %m'})
  if empty(l:lines)
    cclose
    echo 'No unknown words.'
  else
    cwindow
    cfirst
  endif
endfunction

command! Wordhawk call s:Check()
command! WordhawkAdd call system('wordhawk-cli add ' . shellescape(expand('<cword>'))) | echo 'Added' expand('<cword>')
