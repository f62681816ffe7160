set -g _HIP_SAVEVERSION = '19.5.303'
# ÿþ
out/mÿ1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/Ã.ÿ$F4.exr"	)
}
