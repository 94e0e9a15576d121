;;; wordhawk.el --- check spelling with Wordhawk  -*- lexical-binding: t -*-

;; Put this into your init file. `M-x ispell-buffer' then walks through the unknown words,
;; `M-$' corrects the word at point, and Flyspell marks unknown words as you type.

(require 'ispell)
(setq ispell-program-name "wordhawk-cli")

;; The language follows the system's; here another one for German letters.
;; (add-hook 'message-mode-hook
;;           (lambda () (setq-local ispell-extra-args '("--set" "Language=1031"))))

(add-hook 'text-mode-hook #'flyspell-mode)
(add-hook 'prog-mode-hook #'flyspell-prog-mode)

;;; wordhawk.el ends here
